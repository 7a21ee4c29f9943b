// The window benchmark's results as a Markdown table for the performance document: each step's
// time, the plug-in's share where it is told apart, the host's own, the goal and whether it is
// met, with a line on how many runs each figure is the median of.
#pragma once

#include <string>

#include "scale_results.h"

namespace tx::bench {

std::string window_table(const scale_results& results);

}  // namespace tx::bench
