#include "tree_scale_reporter.h"

#include <cstdio>
#include <iterator>

#include "tree_benchmarks.h"

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

const char* verdict(bool met) { return met ? "met" : "NOT MET"; }

constexpr std::size_t largest = tree_sizes[std::size(tree_sizes) - 1];

// One column: the value times `scale`, or "-" when it was not measured.
void print_cell(const double* value, double scale, int width, int precision) {
  if (value == nullptr) {
    std::printf(" %*s", width, "-");
  } else {
    std::printf(" %*.*f", width, precision, *value * scale);
  }
}

}  // namespace

void tree_scale_reporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
    std::map<std::string, double>& counters = counters_[run.run_name.function_name];
    counters.clear();
    for (const auto& [name, counter] : run.counters) counters[name] = counter.value;
  }
}

const double* tree_scale_reporter::counter(const std::string& benchmark, const char* name) const {
  const auto run = counters_.find(benchmark);
  if (run == counters_.end()) return nullptr;
  const auto found = run->second.find(name);
  return found != run->second.end() ? &found->second : nullptr;
}

void tree_scale_reporter::print_table() const {
  const std::string at_largest = short_size(largest);
  std::printf(
      "\nelement tree at scale: median run, and per element (flat when growth is linear)\n");
  std::printf("%-28s", "operation");
  for (const std::size_t elements : tree_sizes) {
    std::printf(" %9s", (short_size(elements) + " ms").c_str());
  }
  for (const std::size_t elements : tree_sizes) {
    std::printf(" %10s", (short_size(elements) + " ns/el").c_str());
  }
  std::printf("   goal at %s\n", at_largest.c_str());

  for (const tree_operation& operation : tree_operations) {
    std::printf("%-28s", operation.label);
    for (const std::size_t elements : tree_sizes) {
      print_cell(counter(tree_benchmark_name(operation.name, elements), median_ms), 1, 9, 2);
    }
    for (const std::size_t elements : tree_sizes) {
      print_cell(counter(tree_benchmark_name(operation.name, elements), median_ms),
                 1e6 / static_cast<double>(elements), 10, 1);
    }
    const std::string name = tree_benchmark_name(operation.name, largest);
    if (operation.goal_seconds > 0) {
      std::printf("   <= %4.0f ms", operation.goal_seconds * 1e3);
      if (const double* ms = counter(name, median_ms)) {
        std::printf("  %s", verdict(*ms <= operation.goal_seconds * 1e3));
      }
    }
    std::printf("\n");
  }

  struct memory_row {
    const char* title;
    const char* counter;
    bool has_goal;
  };
  constexpr memory_row rows[] = {{"tree", tree_bytes, false},
                                 {"tree + store after Execute", executed_bytes, true},
                                 {"peak during build + Execute", peak_bytes, true},
                                 {"tree + store after refresh", refreshed_bytes, false}};
  std::printf("\n%-28s", "plug-in heap, B/element");
  for (const std::size_t elements : tree_sizes) std::printf(" %9s", short_size(elements).c_str());
  std::printf("   goal at %s\n", at_largest.c_str());
  const std::string memory_at_largest = tree_benchmark_name("memory", largest);
  for (const memory_row& row : rows) {
    std::printf("%-28s", row.title);
    for (const std::size_t elements : tree_sizes) {
      print_cell(counter(tree_benchmark_name("memory", elements), row.counter), 1, 9, 1);
    }
    if (row.has_goal) {
      std::printf("   <= %4.0f B", tree_memory_goal);
      if (const double* bytes = counter(memory_at_largest, row.counter)) {
        std::printf("  %s", verdict(*bytes <= tree_memory_goal));
      }
    }
    std::printf("\n");
  }
}

}  // namespace tx::bench
