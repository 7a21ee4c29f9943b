#include "scale_tables.h"

#include <cstdio>
#include <vector>

#include "rename_measures.h"
#include "runtime_measures.h"
#include "tree_measures.h"

namespace tx::bench {
namespace {

// "10k", "100k", "1M".
std::string short_size(std::size_t elements) {
  if (elements >= 1'000'000 && elements % 1'000'000 == 0) {
    return std::to_string(elements / 1'000'000) + "M";
  }
  if (elements >= 1'000 && elements % 1'000 == 0) return std::to_string(elements / 1'000) + "k";
  return std::to_string(elements);
}

template <class... Values>
std::string format(const char* pattern, Values... values) {
  char text[128];
  std::snprintf(text, sizeof text, pattern, values...);
  return text;
}

// Markdown tables, cell by cell: «| a | b |».
void cell(std::string& table, std::string_view text) {
  table += "| ";
  table += text;
  table += ' ';
}
void end_row(std::string& table) { table += "|\n"; }
// The line under the header, one letter a column: 'l' aligns it left, 'r' right.
void rule(std::string& table, std::string_view columns) {
  table += '|';
  for (const char column : columns) table += column == 'r' ? "---:|" : "---|";
  table += '\n';
}

// A label column, `numbers` columns of figures, and a last column of text.
std::string alignments(std::size_t numbers) {
  std::string letters = "l";
  letters.append(numbers, 'r');
  letters += 'l';
  return letters;
}

std::string or_dash(std::optional<double> value, const char* pattern) {
  return value ? format(pattern, *value) : "-";
}

std::string millions(double per_second) { return format("%.2f M", per_second / 1e6); }

// Growth from the second largest size to the largest, per element: 1.00 when linear.
constexpr std::size_t before_largest = tree_sizes[std::size(tree_sizes) - 2];

std::optional<double> growth(std::optional<double> smaller, std::optional<double> larger,
                             double size_ratio) {
  if (!smaller || !larger || *smaller <= 0) return std::nullopt;
  return *larger / *smaller / size_ratio;
}

std::string growth_header() {
  return "growth " + short_size(before_largest) + "→" + short_size(largest_tree_size);
}

// One goal of the report and where a build stands against it.
struct goal_check {
  std::string goal;
  std::optional<double> figure;
  std::string figure_text;  // «-» when not measured
  bool met = false;
};

std::vector<goal_check> goal_checks(const scale_results& results,
                                    std::optional<double> sed_names_per_second) {
  std::vector<goal_check> checks;
  const std::string at = " at " + short_size(largest_tree_size);
  for (const tree_operation& operation : tree_operations) {
    if (operation.goal_seconds <= 0) continue;
    const auto ms = results.number(tree_key(operation.key, largest_tree_size, "ms"));
    checks.push_back({format("%s ≤ %.0f ms", operation.label, operation.goal_seconds * 1e3) + at,
                      ms, or_dash(ms, "%.1f ms"), ms && *ms <= operation.goal_seconds * 1e3});
  }
  for (const memory_row& row : memory_rows) {
    if (!row.has_goal) continue;
    const auto bytes = results.number(memory_key(row.key, largest_tree_size));
    checks.push_back({format("%s ≤ %.0f B/element", row.label, tree_memory_goal) + at, bytes,
                      or_dash(bytes, "%.1f B"), bytes && *bytes <= tree_memory_goal});
  }
  for (const rename_operation& operation : rename_operations) {
    if (operation.goal_names_per_second <= 0) continue;
    const auto rate = results.number(rename_key(operation.key, "names_per_second"));
    checks.push_back({std::string(operation.key) + " ≥ " +
                          millions(operation.goal_names_per_second) + " names/s",
                      rate, rate ? millions(*rate) : "-",
                      rate && *rate >= operation.goal_names_per_second});
  }
  if (sed_names_per_second && *sed_names_per_second > 0) {
    const auto rate = results.number(rename_key(sed_counterpart, "names_per_second"));
    std::optional<double> ratio;
    if (rate) ratio = *rate / *sed_names_per_second;
    checks.push_back({format("%s ≥ %.0f× GNU sed", sed_counterpart, sed_goal_ratio), ratio,
                      or_dash(ratio, "%.1f×"), ratio && *ratio >= sed_goal_ratio});
  }
  return checks;
}

std::string verdict(bool measured, bool met) {
  if (!measured) return "not measured";
  return met ? "met" : "**missed**";
}

// The notes under a tree table: sizes skipped and steps that failed.
std::string tree_notes(const scale_results& results) {
  std::string notes;
  for (const std::size_t elements : tree_sizes) {
    if (const std::string* reason = results.text(skipped_key(elements))) {
      notes += "- " + short_size(elements) + " elements not measured: " + *reason + "\n";
    }
    const auto note_failure = [&](const char* operation, const char* label) {
      if (const std::string* failed = results.text(tree_key(operation, elements, "failed"))) {
        notes += "- " + std::string(label) + " at " + short_size(elements) +
                 " elements failed: " + *failed + "\n";
      }
    };
    note_failure("memory", "the memory measure");
    for (const tree_operation& operation : tree_operations) {
      note_failure(operation.key, operation.label);
    }
  }
  return notes.empty() ? notes : "\n" + notes;
}

}  // namespace

std::string tree_time_table(const scale_results& results) {
  std::string table;
  cell(table, "step");
  for (const std::size_t elements : tree_sizes) cell(table, short_size(elements) + " ms");
  for (const std::size_t elements : tree_sizes) cell(table, short_size(elements) + " ns/element");
  cell(table, growth_header());
  cell(table, "allocations per element at " + short_size(largest_tree_size));
  cell(table, "goal at " + short_size(largest_tree_size));
  cell(table, "");
  end_row(table);
  // ms, ns/element, growth, allocations, goal
  rule(table, alignments(2 * std::size(tree_sizes) + 3));
  for (const tree_operation& operation : tree_operations) {
    cell(table, operation.label);
    for (const std::size_t elements : tree_sizes) {
      cell(table, or_dash(results.number(tree_key(operation.key, elements, "ms")), "%.2f"));
    }
    for (const std::size_t elements : tree_sizes) {
      const auto ms = results.number(tree_key(operation.key, elements, "ms"));
      cell(table, ms ? format("%.1f", *ms * 1e6 / static_cast<double>(elements)) : "-");
    }
    cell(table, or_dash(growth(results.number(tree_key(operation.key, before_largest, "ms")),
                               results.number(tree_key(operation.key, largest_tree_size, "ms")),
                               static_cast<double>(largest_tree_size) /
                                   static_cast<double>(before_largest)),
                        "%.2f×"));
    cell(table, or_dash(results.number(tree_key(operation.key, largest_tree_size, "allocations")),
                        "%.2f"));
    if (operation.goal_seconds > 0) {
      const auto ms = results.number(tree_key(operation.key, largest_tree_size, "ms"));
      cell(table, format("≤ %.0f ms", operation.goal_seconds * 1e3));
      cell(table, verdict(ms.has_value(), ms && *ms <= operation.goal_seconds * 1e3));
    } else {
      cell(table, "");
      cell(table, "");
    }
    end_row(table);
  }
  table += "\nEach time is the median of ";
  for (std::size_t i = 0; i < std::size(tree_sizes); ++i) {
    if (i > 0) table += i + 1 == std::size(tree_sizes) ? " and " : ", ";
    table += std::to_string(tree_runs[i]);
  }
  table += " runs at ";
  for (std::size_t i = 0; i < std::size(tree_sizes); ++i) {
    if (i > 0) table += i + 1 == std::size(tree_sizes) ? " and " : ", ";
    table += short_size(tree_sizes[i]);
  }
  table += " elements.\n";
  table += tree_notes(results);
  return table;
}

std::string tree_memory_table(const scale_results& results) {
  std::string table;
  cell(table, "plug-in heap, B/element");
  for (const std::size_t elements : tree_sizes) cell(table, short_size(elements));
  cell(table, growth_header());
  cell(table, "goal at " + short_size(largest_tree_size));
  cell(table, "");
  end_row(table);
  rule(table, alignments(std::size(tree_sizes) + 2));  // sizes, growth, goal
  for (const memory_row& row : memory_rows) {
    cell(table, row.label);
    for (const std::size_t elements : tree_sizes) {
      cell(table, or_dash(results.number(memory_key(row.key, elements)), "%.1f"));
    }
    // Bytes per element already are per element: their growth is the plain ratio.
    cell(table, or_dash(growth(results.number(memory_key(row.key, before_largest)),
                               results.number(memory_key(row.key, largest_tree_size)), 1),
                        "%.2f×"));
    if (row.has_goal) {
      const auto bytes = results.number(memory_key(row.key, largest_tree_size));
      cell(table, format("≤ %.0f B", tree_memory_goal));
      cell(table, verdict(bytes.has_value(), bytes && *bytes <= tree_memory_goal));
    } else {
      cell(table, "");
      cell(table, "");
    }
    end_row(table);
  }
  cell(table, "process peak resident, MB (whole program so far)");
  for (const std::size_t elements : tree_sizes) {
    const auto bytes = results.number(memory_key(peak_resident_row, elements));
    cell(table, bytes && *bytes > 0 ? format("%.0f", *bytes / 1e6) : "-");
  }
  for (int i = 0; i < 3; ++i) cell(table, "");
  end_row(table);
  return table;
}

std::string rename_table(std::span<const measured_build> builds,
                         std::optional<double> sed_names_per_second) {
  std::string table;
  cell(table, "operation");
  for (const measured_build& build : builds) cell(table, build.title + ", names/s");
  cell(table, "changed");
  cell(table, "allocations per unchanged / changed name");
  cell(table, "goal");
  end_row(table);
  rule(table, alignments(builds.size() + 2));  // builds, changed, allocations; goal
  const auto rate_of = [](const measured_build& build, const char* operation) {
    return build.results ? build.results->number(rename_key(operation, "names_per_second"))
                         : std::nullopt;
  };
  // The share changed and the allocations are the same code's in every build: the first's.
  const scale_results* first = builds.empty() ? nullptr : builds.front().results;
  for (const rename_operation& operation : rename_operations) {
    cell(table, operation.key);
    for (const measured_build& build : builds) {
      const auto rate = rate_of(build, operation.key);
      cell(table, rate ? millions(*rate) : "-");
    }
    const auto number = [&](const char* what) {
      return first ? first->number(rename_key(operation.key, what)) : std::nullopt;
    };
    cell(table, or_dash(number("changed_percent"), "%.1f %%"));
    const auto unchanged = number("allocations_unchanged");
    const auto changed = number("allocations_changed");
    cell(table, unchanged && changed ? format("%.3f / %.3f", *unchanged, *changed) : "-");
    cell(table, operation.goal_names_per_second > 0
                    ? "≥ " + millions(operation.goal_names_per_second)
                    : std::string());
    end_row(table);
  }
  if (sed_names_per_second) {
    cell(table, "GNU sed `s/\\broad\\b/street/gI` (native)");
    for (std::size_t i = 0; i < builds.size(); ++i) cell(table, millions(*sed_names_per_second));
    for (int i = 0; i < 3; ++i) cell(table, "");
    end_row(table);
    cell(table, std::string(sed_counterpart) + " / GNU sed");
    for (const measured_build& build : builds) {
      const auto rate = rate_of(build, sed_counterpart);
      cell(table, rate ? format("%.1f×", *rate / *sed_names_per_second) : "-");
    }
    cell(table, "");
    cell(table, "");
    cell(table, format("≥ %.0f×", sed_goal_ratio));
    end_row(table);
  }
  table += format("\nEach speed is the median of %zu passes over the names.\n", rename_runs);
  return table;
}

std::string runtime_table(std::span<const measured_build> builds) {
  std::string table;
  cell(table, "runtime, ns per call");
  for (const measured_build& build : builds) cell(table, build.title);
  for (std::size_t i = 1; i < builds.size(); ++i)
    cell(table, builds[i].title + " / " + builds[0].title);
  end_row(table);
  std::string columns = "l";  // then every figure and ratio to the right
  columns.append(2 * builds.size() - 1, 'r');
  rule(table, columns);
  for (const runtime_operation& operation : runtime_operations) {
    const std::string key = "runtime." + std::string(operation.key) + ".ns";
    cell(table, operation.label);
    std::vector<std::optional<double>> figures;
    for (const measured_build& build : builds) {
      figures.push_back(build.results ? build.results->number(key) : std::nullopt);
      cell(table, or_dash(figures.back(), "%.1f"));
    }
    for (std::size_t i = 1; i < builds.size(); ++i) {
      cell(table, or_dash(growth(figures[0], figures[i], 1), "%.1f×"));
    }
    end_row(table);
  }
  return table;
}

std::string goals_table(std::span<const measured_build> builds,
                        std::optional<double> sed_names_per_second) {
  std::string table;
  cell(table, "goal");
  std::vector<std::vector<goal_check>> checks;
  for (const measured_build& build : builds) {
    cell(table, build.title);
    cell(table, "");
    checks.push_back(
        goal_checks(build.results ? *build.results : scale_results{}, sed_names_per_second));
  }
  end_row(table);
  std::string columns = "l";  // then the figure and the verdict of each build
  for (std::size_t i = 0; i < builds.size(); ++i) columns += "rl";
  rule(table, columns);
  const std::size_t goals = checks.empty() ? 0 : checks.front().size();
  for (std::size_t goal = 0; goal < goals; ++goal) {
    cell(table, checks.front()[goal].goal);
    for (const std::vector<goal_check>& of_build : checks) {
      cell(table, of_build[goal].figure_text);
      cell(table, verdict(of_build[goal].figure.has_value(), of_build[goal].met));
    }
    end_row(table);
  }
  return table;
}

std::string missed_goals(std::span<const measured_build> builds,
                         std::optional<double> sed_names_per_second) {
  std::string lines;
  for (const measured_build& build : builds) {
    const std::vector<goal_check> checks =
        goal_checks(build.results ? *build.results : scale_results{}, sed_names_per_second);
    for (const goal_check& check : checks) {
      if (check.figure && check.met) continue;
      lines += "- " + build.title + ": " + check.goal + " — " +
               (check.figure ? check.figure_text : std::string("not measured")) + "\n";
    }
  }
  return lines;
}

}  // namespace tx::bench
