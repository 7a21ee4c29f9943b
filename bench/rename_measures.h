// The rename transformations over a million generated layer names (layer_names()): each
// operation alone and the chain of four as the dialog applies them, in names per second.
#pragma once

#include <cstddef>

#include "scale_results.h"

namespace tx::bench {

struct rename_operation {
  const char* key;                   // in the results' keys and the tables
  double goal_names_per_second = 0;  // 0: no goal
};

inline constexpr rename_operation rename_operations[] = {
    {"find_replace", 5e6},   {"lower_case"},      {"first_letter"},
    {"insert_end"},          {"erase_extension"}, {"erase_after_underscore"},
    {"chain_of_four", 1.5e6}};

// The operation set beside GNU sed's «s/\broad\b/street/gI» over the same names, and how many
// times sed's speed it should reach.
inline constexpr const char* sed_counterpart = "find_replace";
inline constexpr double sed_goal_ratio = 3;

// Timed passes over all the names per operation, of which the median counts.
inline constexpr std::size_t rename_runs = 5;

// Measures every operation into `results`: names per second, the share of names changed and
// the heap allocations per unchanged and per changed name.
void measure_renames(scale_results& results);

}  // namespace tx::bench
