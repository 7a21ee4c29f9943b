// The tables of the scale report, in Markdown, from the results of one or more builds: the
// element tree's times and memory per build, the rename speeds of every build beside GNU sed,
// and every goal with whether each build meets it. The same text is printed by a run of the
// report and put into docs/performance.md.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "scale_results.h"

namespace tx::bench {

struct measured_build {
  std::string title;             // «native», «Windows under Wine»
  const scale_results* results;  // null: not measured
};

// Median time of each step at every size, per element, its growth from the second largest to
// the largest size (1.00 = linear), and the goal; then the notes of skipped sizes and failed
// steps.
std::string tree_time_table(const scale_results& results);
// Plug-in heap bytes per element at every size, its growth, the goal; the process's peak.
std::string tree_memory_table(const scale_results& results);
// Names per second of every rename operation in each build, GNU sed's beside.
std::string rename_table(std::span<const measured_build> builds,
                         std::optional<double> sed_names_per_second);
// Nanoseconds per call of the runtime underneath in each build, and each build against the
// first.
std::string runtime_table(std::span<const measured_build> builds);
// Every goal, the figure of each build at the largest size and whether it is met.
std::string goals_table(std::span<const measured_build> builds,
                        std::optional<double> sed_names_per_second);
// One line per goal a build misses (or measured nothing for), «- native: …»; empty when every
// goal is met in every build.
std::string missed_goals(std::span<const measured_build> builds,
                         std::optional<double> sed_names_per_second);

}  // namespace tx::bench
