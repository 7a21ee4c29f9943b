// The project-file benchmark's results (tx_project_files_bench) as Markdown tables for the
// performance document: open, the headless rename, the Python script, their ratio, save and
// peak memory at each size, natively and under Wine, with the growth from 100k to 1M elements,
// the goal at 1M and whether it is met.
#pragma once

#include <string>

#include "scale_results.h"

namespace tx::bench {

std::string project_files_tables(const scale_results& results);

}  // namespace tx::bench
