#include "summary_reporter.h"

#include <cstdio>

namespace tx::bench {
namespace {

double counter(const benchmark::BenchmarkReporter::Run& run, const char* name) {
  const auto found = run.counters.find(name);
  return found == run.counters.end() ? 0 : static_cast<double>(found->second);
}

std::string millions(double per_second) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f M", per_second / 1e6);
  return text;
}

}  // namespace

void summary_reporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
    measured_.push_back({run.run_name.function_name, counter(run, "items_per_second"),
                         counter(run, "allocs/unchanged"), counter(run, "allocs/changed")});
  }
}

const summary_reporter::measured* summary_reporter::find(const std::string& name) const {
  // The last run of a name counts (with repetitions, the last repetition).
  for (auto it = measured_.rbegin(); it != measured_.rend(); ++it) {
    if (it->name == name) return &*it;
  }
  return nullptr;
}

void summary_reporter::print_summary(const std::vector<benchmark_goal>& goals,
                                     std::optional<double> sed_names_per_second) const {
  std::printf("\n%-26s %12s %12s %14s %12s\n", "summary", "names/s", "goal", "allocs/unchg.",
              "allocs/chg.");
  for (const benchmark_goal& goal : goals) {
    const measured* row = find(goal.name);
    if (row == nullptr) continue;
    const bool met = goal.names_per_second == 0 || row->names_per_second >= goal.names_per_second;
    std::printf("%-26s %12s %12s %14.3f %12.3f%s\n", goal.name.c_str(),
                millions(row->names_per_second).c_str(),
                goal.names_per_second > 0 ? (">= " + millions(goal.names_per_second)).c_str() : "-",
                row->allocations_per_unchanged, row->allocations_per_changed,
                met ? "" : "  (below goal)");
  }
  if (!sed_names_per_second) return;
  std::printf("%-26s %12s\n", "GNU sed", millions(*sed_names_per_second).c_str());
  if (const measured* ours = find(sed_counterpart); ours && *sed_names_per_second > 0) {
    const double ratio = ours->names_per_second / *sed_names_per_second;
    std::printf("%-26s %11.1fx %12s%s\n", "find_replace / sed", ratio, ">= 3.0x",
                ratio >= 3 ? "" : "  (below goal)");
  }
}

}  // namespace tx::bench
