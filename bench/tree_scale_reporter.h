// The console report of Google Benchmark, and after it the scale table of the element tree:
// one row per operation, its median time at each size and per element (so that linear growth
// shows as a flat per-element figure) and the goal at the largest size; then the plug-in's
// memory per element.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace tx::bench {

class tree_scale_reporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;
  // Prints the tables of whatever ran; a size that did not run shows "-".
  void print_table() const;

 private:
  // The counter `name` of the benchmark, or null when it did not run.
  const double* counter(const std::string& benchmark, const char* name) const;

  // The counters of each benchmark that ran, by its registered name.
  std::map<std::string, std::map<std::string, double>> counters_;
};

}  // namespace tx::bench
