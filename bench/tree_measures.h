// The element tree at scale: each step of the dialog over every element of projects of 10k,
// 100k and 1M elements in the reference host, timed on its own (its untimed preparation around
// it), and the plug-in's heap bytes per element.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "scale_results.h"

namespace tx::bench {

struct tree_operation {
  const char* key;          // in the results' keys
  const char* label;        // in the tables
  double goal_seconds = 0;  // at the largest size; 0: no goal
};

// In the order of the tables. The last is no step of the plug-in: the same caption writes as the
// commit's, made straight through the host, to show what the reference host's own recording
// costs.
inline constexpr tree_operation tree_operations[] = {
    {"build", "build", 0.5},     {"collect", "collect"},
    {"execute", "Execute", 1.0}, {"refresh", "refresh", 0.2},
    {"undo", "undo", 0.3},       {"redo", "redo", 0.3},
    {"commit", "commit", 1.0},   {"host_writes", "(host caption writes alone)"}};
inline constexpr std::size_t tree_sizes[] = {10'000, 100'000, 1'000'000};
inline constexpr std::size_t largest_tree_size = tree_sizes[std::size(tree_sizes) - 1];
// Timed runs at each size, of which the median counts.
inline constexpr std::size_t tree_runs[] = {15, 7, 5};

struct memory_row {
  const char* key;
  const char* label;
  bool has_goal;
};
// The plug-in's heap over the host's project, in bytes per element.
inline constexpr memory_row memory_rows[] = {{"tree", "tree", false},
                                             {"executed", "tree + store after Execute", true},
                                             {"peak", "peak during build + Execute", true},
                                             {"refreshed", "tree + store after refresh", false}};
// Plug-in bytes per element at the largest size, held and at the peak.
inline constexpr double tree_memory_goal = 300;
// Key of the process's peak resident bytes once a size is measured (whole program so far).
inline constexpr const char* peak_resident_row = "process_peak_resident";

// Measures every operation and the memory over the project of `elements` elements (written into
// `folder` first when it is not there), `runs` timed runs each, into `results`. A step whose
// result is not what every element should give is recorded as failed («tree.<op>.<n>.failed»)
// and the others go on. Besides the median milliseconds («.ms») each step records the heap
// allocations per element made inside its timed call («.allocations»). False, with `error` set,
// when the project cannot be opened.
bool measure_tree(const std::filesystem::path& folder, std::size_t elements, std::size_t runs,
                  scale_results& results, std::string& error);

// Closes the project the measures opened, so that the next size starts from an empty host.
void close_tree_project();

}  // namespace tx::bench
