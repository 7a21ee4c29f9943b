// The console report of Google Benchmark, and after it a short table: names/s of each benchmark
// against its goal, the allocations per unchanged name, and GNU sed beside find-and-replace.
#pragma once

#include <benchmark/benchmark.h>

#include <optional>
#include <string>
#include <vector>

#include "rename_benchmarks.h"

namespace tx::bench {

class summary_reporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;

  // Prints the table; `sed_names_per_second` is sed's figure when it was measured.
  void print_summary(const std::vector<benchmark_goal>& goals,
                     std::optional<double> sed_names_per_second) const;

 private:
  struct measured {
    std::string name;
    double names_per_second = 0;
    double allocations_per_unchanged = 0;
    double allocations_per_changed = 0;
  };
  const measured* find(const std::string& name) const;

  std::vector<measured> measured_;
};

}  // namespace tx::bench
