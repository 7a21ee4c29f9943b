// The element tree's scale benchmarks: each operation of the dialog over every element of
// projects of 10k, 100k and 1M elements, and the plug-in's memory per element.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tx::bench {

struct tree_operation {
  const char* name;         // in the benchmark's name: tree_<name>/<elements>
  const char* label;        // in the table
  double goal_seconds = 0;  // at the largest size; 0: no goal
};

// In the order of the table. The last is no step of the plug-in: the same caption writes as the
// commit's, made straight through the host, to show what the reference host's own recording
// costs.
inline constexpr tree_operation tree_operations[] = {
    {"build", "build", 0.5},     {"collect", "collect"},
    {"execute", "Execute", 1.0}, {"refresh", "refresh", 0.2},
    {"undo", "undo", 0.3},       {"redo", "redo", 0.3},
    {"commit", "commit", 1.0},   {"host_writes", "(host caption writes alone)"}};
inline constexpr std::size_t tree_sizes[] = {10'000, 100'000, 1'000'000};
// Timed runs at each size, of which the median counts.
inline constexpr std::size_t tree_runs[] = {15, 5, 3};

// Plug-in bytes per element at the largest size, held and at the peak.
inline constexpr double tree_memory_goal = 300;

// The counters of each timed benchmark: the median run, and page faults per run (each one the
// kernel providing a fresh page of memory).
inline constexpr const char* median_ms = "median_ms";
inline constexpr const char* page_faults = "faults";

// The counters of the memory measure, in heap bytes per element.
inline constexpr const char* tree_bytes = "tree_B/element";            // after the build
inline constexpr const char* executed_bytes = "executed_B/element";    // tree + store after Execute
inline constexpr const char* peak_bytes = "peak_B/element";            // highest during both
inline constexpr const char* refreshed_bytes = "refreshed_B/element";  // after the refresh

// "tree_build/10000": the benchmark of `operation` over `elements` elements.
std::string tree_benchmark_name(std::string_view operation, std::size_t elements);

// Registers with Google Benchmark, size after size: the memory measure (benchmark "memory")
// and then every operation, each timed on its own (its untimed preparation before). The projects
// are written into, and read from, `folder`.
void register_tree_benchmarks(const std::filesystem::path& folder);

}  // namespace tx::bench
