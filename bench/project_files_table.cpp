#include "project_files_table.h"

#include <array>
#include <cstdio>
#include <optional>
#include <string_view>

#include "grouped_number.h"
#include "project_files_keys.h"

namespace tx::bench {
namespace {

constexpr std::array<std::size_t, 3> sizes{10'000, 100'000, 1'000'000};

enum class unit { ms, megabytes, times };
enum class goal_kind { none, at_most, at_least };

// One row: what it measures, where its figure comes from, and its goal at 1M natively (under
// Wine a time or memory figure must be within 2× of the native one; a ratio keeps its goal).
struct row {
  std::string_view title;
  std::string_view measure;  // «rename», «open», …, or «ratio» (Python's time ÷ the rename's)
  std::string_view what;     // «ms» or «peak_bytes»
  unit shown;
  goal_kind goal;
  double goal_value;
  bool native_only;
};

constexpr std::array<row, 9> rows{{
    {"open (read, check, build the model)", "open", "ms", unit::ms, goal_kind::at_most, 1000,
     false},
    {"headless rename, whole process", "rename", "ms", unit::ms, goal_kind::at_most, 2500, false},
    {"the same rename by the Python script", "python", "ms", unit::ms, goal_kind::none, 0, true},
    {"rename vs Python (Python's time ÷ txhost's)", "ratio", "ms", unit::times, goal_kind::at_least,
     3, false},
    {"save", "save", "ms", unit::ms, goal_kind::at_most, 1000, false},
    {"peak memory, headless rename", "rename", "peak_bytes", unit::megabytes, goal_kind::at_most,
     400e6, false},
    {"peak memory, the Python script", "python", "peak_bytes", unit::megabytes, goal_kind::none, 0,
     true},
    {"open and list (`txhost --project`)", "list", "ms", unit::ms, goal_kind::none, 0, false},
    {"peak memory, open and list", "list", "peak_bytes", unit::megabytes, goal_kind::none, 0,
     false},
}};

std::string shown_text(double value, unit u) {
  char text[32];
  switch (u) {
    case unit::ms:
      return grouped(value) + " ms";
    case unit::megabytes:
      return grouped(value / 1e6) + " MB";
    case unit::times:
      std::snprintf(text, sizeof text, "%.2f×", value);
      return text;
  }
  return {};
}

// Appends « VALUE |» by appends alone (mingw's -O3 warns of an overlapping copy when a string
// is put in front of another).
void cell(std::string& text, std::string_view value) {
  text += ' ';
  text += value;
  text += " |";
}

class table_maker {
 public:
  explicit table_maker(const scale_results& results) : results_(results) {}

  std::optional<double> figure(std::string_view build, const row& r, std::size_t elements) const {
    if (r.measure == "ratio") {
      const std::optional<double> python = number("native.python", elements, "ms");
      const std::optional<double> rename = number(std::string(build) + ".rename", elements, "ms");
      if (!python || !rename || *rename <= 0) return std::nullopt;
      return *python / *rename;
    }
    return number(std::string(build) + "." + std::string(r.measure), elements, r.what);
  }

  // Why a figure is missing: the failure told for its run, or «not measured».
  std::string missing(std::string_view build, const row& r, std::size_t elements) const {
    const std::string measure = r.measure == "open" || r.measure == "save" || r.measure == "ratio"
                                    ? "rename"
                                    : std::string(r.measure);
    const std::string key = files_key(std::string(build) + "." + measure, elements, "failed");
    return results_.text(key) != nullptr ? "failed" : "—";
  }

  std::string table(std::string_view build) const {
    const bool wine = build == "wine";
    std::string text =
        wine ? "| | 10k | 100k | 1M | growth 100k→1M | × native at 1M | goal at 1M | met? |\n"
               "|---|---:|---:|---:|---:|---:|---|---|\n"
             : "| | 10k | 100k | 1M | growth 100k→1M | goal at 1M | met? |\n"
               "|---|---:|---:|---:|---:|---|---|\n";
    for (const row& r : rows) {
      if (wine && r.native_only) continue;
      text += "| " + std::string(r.title) + " |";
      for (const std::size_t elements : sizes) {
        const std::optional<double> value = figure(build, r, elements);
        cell(text, value ? shown_text(*value, r.shown) : missing(build, r, elements));
      }
      const std::optional<double> at_100k = figure(build, r, 100'000);
      const std::optional<double> at_1m = figure(build, r, 1'000'000);
      char growth[32] = "—";
      if (at_100k && at_1m && *at_100k > 0) {
        // Per element for times and memory; a ratio is compared as it is.
        const double factor = r.shown == unit::times ? *at_1m / *at_100k : *at_1m / *at_100k / 10;
        std::snprintf(growth, sizeof growth, "%.2f×%s", factor,
                      r.shown == unit::times ? "" : " per element");
      }
      cell(text, growth);
      if (wine) {
        // How the Windows build under Wine compares with the native build on the same row.
        const std::optional<double> native = figure("native", r, 1'000'000);
        char times[32] = "—";
        if (native && at_1m && *native > 0)
          std::snprintf(times, sizeof times, "%.2f×", *at_1m / *native);
        cell(text, times);
      }
      const std::optional<double> native = figure("native", r, 1'000'000);
      cell(text, goal_text(r, wine));
      cell(text, met_text(r, wine, at_1m, native));
      text += '\n';
    }
    return text;
  }

 private:
  std::optional<double> number(const std::string& row_name, std::size_t elements,
                               std::string_view what) const {
    return results_.number(files_key(row_name, elements, what));
  }

  // Under Wine a time or memory is held to twice the native build's figure, not to a number.
  static bool against_native(const row& r, bool wine) { return wine && r.shown != unit::times; }

  static std::string goal_text(const row& r, bool wine) {
    if (r.goal == goal_kind::none) return "";
    if (against_native(r, wine)) return "≤ 2.00× native";
    const std::string sign = r.goal == goal_kind::at_most ? "≤ " : "≥ ";
    return sign + shown_text(r.goal_value, r.shown);
  }

  static std::string met_text(const row& r, bool wine, std::optional<double> at_1m,
                              std::optional<double> native) {
    if (r.goal == goal_kind::none) return "";
    if (!at_1m || (against_native(r, wine) && !native)) return "not measured";
    const double goal = against_native(r, wine) ? 2 * *native : r.goal_value;
    const bool met = r.goal == goal_kind::at_most ? *at_1m <= goal : *at_1m >= goal;
    return met ? "met" : "**missed**";
  }

  const scale_results& results_;
};

std::string runs_line(const scale_results& results) {
  std::string text = "Each figure is the median of";
  for (const std::size_t elements : sizes) {
    const std::optional<double> runs = results.number(files_key("native.rename", elements, "runs"));
    text += (elements == sizes.front()  ? " "
             : elements == sizes.back() ? " and "
                                        : ", ") +
            (runs ? grouped(*runs) : std::string("no")) + " runs at " +
            (elements == 10'000    ? "10k"
             : elements == 100'000 ? "100k"
                                   : "1M");
  }
  return text + " (each run a fresh process on a fresh copy of the file).";
}

std::string facts_lines(const scale_results& results) {
  std::string text;
  for (const std::size_t elements : sizes) {
    const std::optional<double> bytes = results.number(files_key("file", elements, "bytes"));
    const std::optional<double> same =
        results.number(files_key("second_save", elements, "identical"));
    text += "- " + grouped(static_cast<double>(elements)) + " elements: the file is " +
            (bytes ? grouped(*bytes / 1e6) + " MB" : std::string("not made")) +
            "; a second save writes " +
            (!same       ? std::string("— (not tried)")
             : *same > 0 ? std::string("the same bytes")
                         : std::string("**other bytes**")) +
            ".\n";
  }
  return text;
}

std::string failures(const scale_results& results) {
  std::string text;
  for (const std::string_view build : {"native", "wine"}) {
    for (const std::string_view measure : {"list", "rename", "python"}) {
      for (const std::size_t elements : sizes) {
        const std::string* failed = results.text(
            files_key(std::string(build) + "." + std::string(measure), elements, "failed"));
        if (failed == nullptr) continue;
        text += "- " + std::string(build) + " " + std::string(measure) + " at " +
                grouped(static_cast<double>(elements)) + " failed: " + *failed + "\n";
      }
    }
  }
  return text.empty() ? text : "\nRuns that failed (never timed):\n\n" + text;
}

}  // namespace

std::string project_files_tables(const scale_results& results) {
  const table_maker maker(results);
  return "### Native build (Linux, g++)\n\n" + maker.table("native") +
         "\n### Windows build under Wine (mingw-w64)\n\n" + maker.table("wine") + "\n" +
         runs_line(results) + "\n\n" + facts_lines(results) + failures(results);
}

}  // namespace tx::bench
