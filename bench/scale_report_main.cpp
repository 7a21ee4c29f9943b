// The scale report: the element tree over projects of 10k, 100k and 1M elements, and the rename
// transformations over a million layer names, timed with the steady clock (median of a few
// runs), printed as Markdown tables. Builds and runs natively and, as a Windows program, under
// Wine; `./x bench` runs both and composes docs/performance.md from their results.
//
//   tx_scale_report [--projects=DIR] [--results=FILE] [--only=tree|rename]
//                   [--budget-seconds=S] [--sed-names-per-second=N]
//       measures, prints the tables, and writes what it measured to FILE. With a budget, a size
//       of the tree whose time, judged from the size before, would end past S seconds from the
//       start is skipped, and the results say so.
//   tx_scale_report --write-names=FILE
//       writes the million layer names to FILE as UTF-8, one a line (for GNU sed), and stops
//   tx_scale_report --document=OUT --template=FILE [--native=FILE] [--windows=FILE]
//                   [--native-missing=WHY] [--windows-missing=WHY] [--sed-names-per-second=N]
//                   [--date=TEXT] [--machine=TEXT] [--native-load=TEXT] [--windows-load=TEXT]
//                   [--window=FILE] [--window-missing=WHY] [--window-load=TEXT]
//                   [--project-files=FILE] [--project-files-missing=WHY]
//                   [--project-files-load=TEXT] [--section=HEADING]
//       writes the performance document from its template and the results of both builds, of
//       the window benchmark (tx_gui_outline_bench) and of the project-file benchmark
//       (tx_project_files_bench); with --section, only the section under the heading line
//       HEADING is written anew into the document at OUT, the rest of it kept as it is
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include "layer_names.h"
#include "performance_document.h"
#include "rename_measures.h"
#include "runtime_measures.h"
#include "scale_results.h"
#include "scale_tables.h"
#include "tree_measures.h"

namespace {

using namespace tx::bench;

#ifdef _WIN32
constexpr const char* build_title = "Windows build";
#else
constexpr const char* build_title = "native";
#endif

// «--name=value» arguments by name; false, with the offending argument, for anything else.
bool parse_arguments(int argc, char** argv, std::map<std::string, std::string>& options,
                     std::string& bad) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    const std::size_t equals = argument.find('=');
    if (!argument.starts_with("--") || equals == std::string_view::npos) {
      bad = argument;
      return false;
    }
    options[std::string(argument.substr(2, equals - 2))] = argument.substr(equals + 1);
  }
  return true;
}

std::optional<double> positive_number(const std::map<std::string, std::string>& options,
                                      const char* name, bool& bad) {
  const auto found = options.find(name);
  if (found == options.end()) return std::nullopt;
  char* end = nullptr;
  const double value = std::strtod(found->second.c_str(), &end);
  if (found->second.empty() || *end != '\0' || !(value > 0)) {
    std::fprintf(stderr, "--%s wants a positive number, not «%s»\n", name, found->second.c_str());
    bad = true;
    return std::nullopt;
  }
  return value;
}

std::string option(const std::map<std::string, std::string>& options, const char* name) {
  const auto found = options.find(name);
  return found != options.end() ? found->second : std::string();
}

bool read_file(const std::string& path, std::string& text) {
  std::ifstream in(std::filesystem::path(path), std::ios::binary);
  if (!in) return false;
  std::ostringstream content;
  content << in.rdbuf();
  text = content.str();
  return !in.bad();
}

bool write_file(const std::string& path, std::string_view text) {
  std::ofstream out(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.close();
  return static_cast<bool>(out);
}

int write_names(const std::string& path) {
  std::ofstream out(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
  write_utf8_lines(out, layer_names());
  out.close();
  if (!out) {
    std::fprintf(stderr, "cannot write %s\n", path.c_str());
    return 1;
  }
  return 0;
}

// The results of one build, read from `option_name`'s file; null with `missing` set when the
// option is absent or the file cannot be read (`missing` may already say why it is absent).
std::optional<scale_results> results_of(const std::map<std::string, std::string>& options,
                                        const char* option_name, std::string& missing) {
  const std::string path = option(options, option_name);
  if (path.empty()) {
    if (missing.empty()) missing = "no results were given";
    return std::nullopt;
  }
  std::ifstream in(std::filesystem::path(path), std::ios::binary);
  std::string error = "cannot be opened";
  std::optional<scale_results> results;
  if (in) results = scale_results::read(in, error);
  if (!results) missing = "the results file " + path + " " + error;
  return results;
}

int write_document(const std::map<std::string, std::string>& options) {
  std::string template_text;
  const std::string template_path = option(options, "template");
  if (template_path.empty() || !read_file(template_path, template_text)) {
    std::fprintf(stderr, "cannot read the template «%s» (--template=FILE)\n",
                 template_path.c_str());
    return 1;
  }
  document_inputs inputs;
  inputs.native_missing = option(options, "native-missing");
  inputs.windows_missing = option(options, "windows-missing");
  const std::optional<scale_results> native = results_of(options, "native", inputs.native_missing);
  const std::optional<scale_results> windows =
      results_of(options, "windows", inputs.windows_missing);
  inputs.window_missing = option(options, "window-missing");
  const std::optional<scale_results> window = results_of(options, "window", inputs.window_missing);
  inputs.native = native ? &*native : nullptr;
  inputs.windows = windows ? &*windows : nullptr;
  inputs.window = window ? &*window : nullptr;
  bool bad = false;
  inputs.sed_names_per_second = positive_number(options, "sed-names-per-second", bad);
  if (bad) return 2;
  inputs.date = option(options, "date");
  inputs.machine = option(options, "machine");
  inputs.native_load = option(options, "native-load");
  inputs.windows_load = option(options, "windows-load");
  inputs.window_load = option(options, "window-load");
  inputs.project_files_missing = option(options, "project-files-missing");
  const std::optional<scale_results> project_files =
      results_of(options, "project-files", inputs.project_files_missing);
  inputs.project_files = project_files ? &*project_files : nullptr;
  inputs.project_files_load = option(options, "project-files-load");
  const std::string out = option(options, "document");
  std::string document = compose_performance_document(template_text, inputs);
  // --section=HEADING: only that section of the document is written anew, the rest kept.
  if (const std::string heading = option(options, "section"); !heading.empty()) {
    std::string existing;
    read_file(out, existing);
    std::optional<std::string> updated = replace_section(existing, document, heading);
    if (!updated) {
      std::fprintf(stderr, "the template has no section «%s»\n", heading.c_str());
      return 1;
    }
    document = std::move(*updated);
  }
  if (!write_file(out, document)) {
    std::fprintf(stderr, "cannot write %s\n", out.c_str());
    return 1;
  }
  return 0;
}

double seconds_since(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Measures the tree at every size, within the budget when there is one. False when a size
// could not be opened or a step failed.
bool measure_trees(const std::filesystem::path& folder, std::optional<double> budget_seconds,
                   scale_results& results) {
  const auto start = std::chrono::steady_clock::now();
  bool all_well = true;
  double previous_seconds = 0;
  std::size_t previous_size = 0;
  for (std::size_t i = 0; i < std::size(tree_sizes); ++i) {
    const std::size_t elements = tree_sizes[i];
    if (budget_seconds && previous_size > 0) {
      // Every step is linear in the elements, so the size before tells what this one costs:
      // the load of the project (about one run's worth) and the timed runs, scaled by size.
      const double expected =
          previous_seconds * static_cast<double>(elements) / static_cast<double>(previous_size) *
          static_cast<double>(tree_runs[i] + 1) / static_cast<double>(tree_runs[i - 1] + 1);
      const double elapsed = seconds_since(start);
      if (elapsed + expected > *budget_seconds) {
        char reason[256];
        std::snprintf(reason, sizeof reason,
                      "%zu elements took %.0f s in all (loading the project included), so %zu "
                      "would take about %.0f s, past the %.0f s this run was given (%.0f s used)",
                      previous_size, previous_seconds, elements, expected, *budget_seconds,
                      elapsed);
        results.set_text(skipped_key(elements), reason);
        std::fprintf(stderr, "%zu elements skipped: %s\n", elements, reason);
        continue;
      }
    }
    const auto size_start = std::chrono::steady_clock::now();
    std::string error;
    if (!measure_tree(folder, elements, tree_runs[i], results, error)) {
      results.set_text(skipped_key(elements), "the project could not be opened: " + error);
      std::fprintf(stderr, "%zu elements: %s\n", elements, error.c_str());
      all_well = false;
      continue;
    }
    previous_seconds = seconds_since(size_start);
    previous_size = elements;
    std::fprintf(stderr, "element tree at %zu elements measured in %.1f s\n", elements,
                 previous_seconds);
  }
  close_tree_project();
  for (const std::size_t elements : tree_sizes) {
    for (const tree_operation& operation : tree_operations) {
      if (results.text(tree_key(operation.key, elements, "failed"))) all_well = false;
    }
    if (results.text(tree_key("memory", elements, "failed"))) all_well = false;
  }
  return all_well;
}

int measure(const std::map<std::string, std::string>& options) {
  bool bad = false;
  const std::optional<double> budget = positive_number(options, "budget-seconds", bad);
  const std::optional<double> sed = positive_number(options, "sed-names-per-second", bad);
  const std::string only = option(options, "only");
  if (!only.empty() && only != "tree" && only != "rename") {
    std::fprintf(stderr, "--only wants tree or rename, not «%s»\n", only.c_str());
    bad = true;
  }
  if (bad) return 2;
  std::string projects = option(options, "projects");
  if (projects.empty()) projects = TX_SCALE_PROJECTS;

  scale_results results;
  bool all_well = true;
  if (only != "rename") all_well = measure_trees(projects, budget, results);
  if (only != "tree") {
    const auto start = std::chrono::steady_clock::now();
    measure_renames(results);
    measure_runtime(results);
    std::fprintf(stderr, "rename operations and the runtime measured in %.1f s\n",
                 seconds_since(start));
  }

  const measured_build build[] = {{build_title, &results}};
  const auto section = [](std::string& report, const char* title, const std::string& body) {
    report += "\n## ";
    report += title;
    report += "\n\n";
    report += body;
  };
  std::string report;
  if (only != "rename") {
    section(report, "Element tree", tree_time_table(results) + "\n" + tree_memory_table(results));
  }
  if (only != "tree") {
    section(report, "Rename operations", rename_table(build, sed));
    section(report, "The runtime underneath", runtime_table(build));
  }
  section(report, "Goals", goals_table(build, sed));
  std::fputs(report.c_str(), stdout);

  const std::string results_path = option(options, "results");
  if (!results_path.empty()) {
    std::ostringstream text;
    results.write(text);
    if (!write_file(results_path, text.str())) {
      std::fprintf(stderr, "cannot write %s\n", results_path.c_str());
      return 1;
    }
  }
  return all_well ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::map<std::string, std::string> options;
  std::string bad_argument;
  if (!parse_arguments(argc, argv, options, bad_argument)) {
    std::fprintf(stderr,
                 "unknown argument «%s»; every option is --name=value (see bench/"
                 "scale_report_main.cpp)\n",
                 bad_argument.c_str());
    return 2;
  }
  static const std::set<std::string, std::less<>> known = {"projects",
                                                           "results",
                                                           "only",
                                                           "budget-seconds",
                                                           "write-names",
                                                           "document",
                                                           "template",
                                                           "native",
                                                           "windows",
                                                           "native-missing",
                                                           "windows-missing",
                                                           "sed-names-per-second",
                                                           "date",
                                                           "machine",
                                                           "native-load",
                                                           "windows-load",
                                                           "window",
                                                           "window-missing",
                                                           "window-load",
                                                           "project-files",
                                                           "project-files-missing",
                                                           "project-files-load",
                                                           "section"};
  for (const auto& [name, value] : options) {
    if (!known.contains(name)) {
      std::fprintf(stderr, "unknown option --%s\n", name.c_str());
      return 2;
    }
  }
  if (options.contains("write-names")) return write_names(option(options, "write-names"));
  if (options.contains("document")) return write_document(options);
  return measure(options);
}
