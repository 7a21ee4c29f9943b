// The project-file benchmark: txhost over project files of 10k, 100k and 1M elements, each
// command a process of its own, with Python's standard library doing the same rename beside it.
//
//   tx_project_files_bench --txhost=PATH --plugin=PATH --python=PATH --python-script=PATH
//       [--windows-txhost=PATH --windows-plugin=PATH --wine-run=PATH]
//       [--projects=DIR] [--results=FILE] [--sizes=N,N,...] [--runs=N,N,...]
//
// For each size it makes the project file once (cached in DIR), checks that a second save
// writes the same bytes, then times, a few runs each (the median kept):
//   list    txhost --project FILE (open and list, the listing to /dev/null)
//   rename  txhost COPY --plugin PLUGIN --script S --timings: Select All, one find and replace,
//           undo, redo, accept and save; opening and saving as txhost tells them
//   python  python3 rename_project.py COPY: the same rename by the standard library
// natively, and list and rename again for the Windows build under Wine when it is given. Each
// run takes a fresh copy of the file (copying is untimed); a run that fails or leaves the file
// as it was is reported as failed and never timed. The results are written to FILE for the
// performance document (tx_scale_report --document ... --project-files=FILE).
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "child_process.h"
#include "project_files_keys.h"
#include "rename_project_file.h"
#include "scale_results.h"

namespace {

namespace fs = std::filesystem;
using namespace tx::bench;

// The headless rename: Select All through the toolbar, «layer» → «слой» ignoring case (the
// dialog's default), Execute, undo, redo, accept.
constexpr std::string_view rename_script =
    "click tx_prjrename_tree_select_tool\n"
    "set 2 layer\n"
    "set 3 слой\n"
    "click tx_prjrename_tree_apply_operation_tool\n"
    "click tx_prjrename_tree_undo_tool\n"
    "click tx_prjrename_tree_redo_tool\n"
    "accept\n";

struct settings {
  std::map<std::string, std::string> options;
  std::string option(const char* name) const {
    const auto found = options.find(name);
    return found != options.end() ? found->second : std::string();
  }
};

std::vector<std::size_t> numbers(const std::string& text, std::vector<std::size_t> fallback) {
  if (text.empty()) return fallback;
  std::vector<std::size_t> values;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, ',');) {
    values.push_back(static_cast<std::size_t>(std::strtoull(part.c_str(), nullptr, 10)));
  }
  return values;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t n = values.size();
  return n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

// The milliseconds in txhost's --timings line "txhost: STEP FILE took N ms" for the step.
std::optional<double> told_ms(const fs::path& err, std::string_view step) {
  std::ifstream in(err);
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string prefix = "txhost: " + std::string(step) + " ";
    const std::size_t took = line.rfind(" took ");
    if (!line.starts_with(prefix) || took == std::string::npos || !line.ends_with(" ms")) continue;
    return std::strtod(line.c_str() + took + 6, nullptr);
  }
  return std::nullopt;
}

std::string first_line(const fs::path& err) {
  std::ifstream in(err);
  std::string line;
  std::getline(in, line);
  return line;
}

// The measures of one row at one size, over its runs.
struct row_runs {
  std::vector<double> ms, peak, open_ms, save_ms;
  std::string failed;
};

class bench {
 public:
  bench(const settings& s, fs::path folder) : settings_(s), folder_(std::move(folder)) {}

  bool measure_size(std::size_t elements, std::size_t runs) {
    std::printf("\n%zu elements: making the project file\n", elements);
    std::fflush(stdout);
    // Made by a process of its own: a child's peak memory counts from its parent's size at the
    // start, so this process never holds a project itself.
    const fs::path made = folder_ / "made.txt";
    const child_run making = run_child(
        {"/proc/self/exe", "--make=" + std::to_string(elements), "--projects=" + folder_.string()},
        made, folder_ / "stderr.txt");
    std::ifstream told(made);
    std::string path_line, identical_line;
    std::getline(told, path_line);
    std::getline(told, identical_line);
    if (!making.succeeded() || !path_line.starts_with("file ")) {
      const std::string why = "cannot make it: " + first_line(folder_ / "stderr.txt");
      results_.set_text(files_key("made", elements, "failed"), why);
      std::printf("  %s\n", why.c_str());
      return false;
    }
    const fs::path file_path = path_line.substr(5);
    const std::optional<fs::path> file = file_path;
    results_.set(files_key("file", elements, "bytes"), static_cast<double>(fs::file_size(*file)));
    if (identical_line.starts_with("identical ")) {
      results_.set(files_key("second_save", elements, "identical"),
                   identical_line == "identical yes" ? 1 : 0);
    } else {
      results_.set_text(files_key("second_save", elements, "failed"), identical_line);
    }
    const fs::path copy = folder_ / ("work_" + std::to_string(elements) + ".json");
    const std::string txhost = settings_.option("txhost");
    const std::string plugin = settings_.option("plugin");
    measure("native", "list", elements, runs, *file, {txhost, "--project", file->string()});
    measure("native", "rename", elements, runs, *file,
            {txhost, copy.string(), "--plugin", plugin, "--script", script_.string(), "--timings"},
            copy);
    measure("native", "python", elements, runs, *file,
            {settings_.option("python"), settings_.option("python-script"), copy.string()}, copy);
    const std::string wine_run = settings_.option("wine-run");
    if (!wine_run.empty()) {
      const std::string windows_txhost = settings_.option("windows-txhost");
      measure("wine", "list", elements, runs, *file,
              {wine_run, windows_txhost, "--project", file->string()});
      measure("wine", "rename", elements, runs, *file,
              {wine_run, windows_txhost, copy.string(), "--plugin",
               settings_.option("windows-plugin"), "--script", script_.string(), "--timings"},
              copy);
    }
    std::error_code ignored;
    fs::remove(copy, ignored);
    return true;
  }

  bool write_script() {
    script_ = folder_ / "rename_script.txt";
    std::ofstream out(script_, std::ios::binary | std::ios::trunc);
    out << rename_script;
    return static_cast<bool>(out);
  }

  // A first run under Wine starts its server and system processes: untimed.
  void warm_up_wine() {
    const std::string wine_run = settings_.option("wine-run");
    if (wine_run.empty()) return;
    run_child({wine_run, settings_.option("windows-txhost"), "--help"}, "/dev/null",
              folder_ / "stderr.txt");
  }

  scale_results& results() { return results_; }

 private:
  // Runs `command` `runs` times; with `copy`, on a fresh copy of `file` that must change.
  void measure(std::string_view build, std::string_view row, std::size_t elements, std::size_t runs,
               const fs::path& file, const std::vector<std::string>& command,
               const std::optional<fs::path>& copy = std::nullopt) {
    row_runs measured;
    const fs::path err = folder_ / "stderr.txt";
    for (std::size_t run = 0; run < runs && measured.failed.empty(); ++run) {
      if (copy) {
        fs::copy_file(file, *copy, fs::copy_options::overwrite_existing);
        // The copy and the runs before it are written out first, so that a run does not wait
        // for the disk to take what it did not write.
        ::sync();
      }
      const child_run done = run_child(command, "/dev/null", err);
      if (!done.succeeded()) {
        measured.failed = !done.error.empty() ? done.error
                                              : "exit status " + std::to_string(done.exit_status) +
                                                    ": " + first_line(err);
      } else if (copy && same_bytes(file, *copy)) {
        measured.failed = "the file was left as it was";
      } else {
        measured.ms.push_back(done.wall_ms);
        measured.peak.push_back(done.peak_bytes);
        if (row == "rename") {
          const std::optional<double> open = told_ms(err, "opening");
          const std::optional<double> save = told_ms(err, "saving");
          if (open) measured.open_ms.push_back(*open);
          if (save) measured.save_ms.push_back(*save);
        }
      }
    }
    const std::string key = std::string(build) + "." + std::string(row);
    std::printf("  %-6s %-6s ", std::string(build).c_str(), std::string(row).c_str());
    if (!measured.failed.empty()) {
      results_.set_text(files_key(key, elements, "failed"), measured.failed);
      std::printf("failed: %s\n", measured.failed.c_str());
      std::fflush(stdout);
      return;
    }
    results_.set(files_key(key, elements, "ms"), median(measured.ms));
    results_.set(files_key(key, elements, "peak_bytes"), median(measured.peak));
    results_.set(files_key(key, elements, "runs"), static_cast<double>(measured.ms.size()));
    std::printf("%9.0f ms  %7.0f MiB peak", median(measured.ms),
                median(measured.peak) / (1024.0 * 1024.0));
    if (measured.open_ms.size() == measured.ms.size()) {
      results_.set(files_key(std::string(build) + ".open", elements, "ms"),
                   median(measured.open_ms));
      std::printf("  (open %.0f ms", median(measured.open_ms));
    }
    if (measured.save_ms.size() == measured.ms.size()) {
      results_.set(files_key(std::string(build) + ".save", elements, "ms"),
                   median(measured.save_ms));
      std::printf(", save %.0f ms)", median(measured.save_ms));
    }
    std::printf("\n");
    std::fflush(stdout);
  }

  const settings& settings_;
  fs::path folder_;
  fs::path script_;
  scale_results results_;
};

// --make=N: makes the project file of N elements and tells on stdout «file PATH», then
// «identical yes|no» (whether a second save writes the same bytes) or why that was not tried.
int make_project_file(const fs::path& folder, std::size_t elements) {
  std::string error;
  const std::optional<fs::path> file = rename_project_file(folder, elements, error);
  if (!file) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  std::printf("file %s\n", file->string().c_str());
  const std::optional<bool> identical = saves_identically(*file, error);
  if (identical) {
    std::printf("identical %s\n", *identical ? "yes" : "no");
  } else {
    std::printf("a second save failed: %s\n", error.c_str());
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  settings s;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    const std::size_t equals = argument.find('=');
    if (!argument.starts_with("--") || equals == std::string_view::npos) {
      std::fprintf(stderr, "tx_project_files_bench: unexpected argument «%s»\n", argv[i]);
      return 2;
    }
    s.options[std::string(argument.substr(2, equals - 2))] = argument.substr(equals + 1);
  }
  const std::string projects = s.option("projects");
  const fs::path folder = projects.empty() ? fs::path(TX_PROJECT_FILES) : fs::path(projects);
  if (!s.option("make").empty()) {
    return make_project_file(folder, std::strtoull(s.option("make").c_str(), nullptr, 10));
  }
  for (const char* needed : {"txhost", "plugin", "python", "python-script"}) {
    if (s.option(needed).empty()) {
      std::fprintf(stderr, "tx_project_files_bench: --%s=PATH is required\n", needed);
      return 2;
    }
  }
  bench run(s, folder);
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  if (!run.write_script()) {
    std::fprintf(stderr, "tx_project_files_bench: cannot write the rename script\n");
    return 1;
  }
  run.warm_up_wine();
  const std::vector<std::size_t> sizes = numbers(s.option("sizes"), {10'000, 100'000, 1'000'000});
  const std::vector<std::size_t> runs = numbers(s.option("runs"), {5, 3, 3});
  bool all_made = true;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    all_made &=
        run.measure_size(sizes[i], std::max<std::size_t>(1, runs[std::min(i, runs.size() - 1)]));
  }
  const std::string sizes_text =
      s.option("sizes").empty() ? "10000,100000,1000000" : s.option("sizes");
  run.results().set_text("files.sizes", sizes_text);
  const std::string results = s.option("results");
  if (!results.empty()) {
    std::ofstream out(results, std::ios::binary | std::ios::trunc);
    run.results().write(out);
    if (!out) {
      std::fprintf(stderr, "tx_project_files_bench: cannot write %s\n", results.c_str());
      return 1;
    }
  }
  return all_made ? 0 : 1;
}
