// The benchmarks of the rename transformations and the speed each should reach.
#pragma once

#include <string>
#include <vector>

namespace tx::bench {

struct benchmark_goal {
  std::string name;
  double names_per_second = 0;  // 0: no goal
};

// Registers every rename benchmark with Google Benchmark; returns them in order, with goals.
std::vector<benchmark_goal> register_rename_benchmarks();

// The benchmark to set beside GNU sed's «s/\broad\b/street/gI».
inline constexpr const char* sed_counterpart = "find_replace";

}  // namespace tx::bench
