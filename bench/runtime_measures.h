// What the C and C++ runtime underneath costs, measured the same way in both builds, so that a
// difference between the native build and the Windows build under Wine can be told apart from a
// difference in the plug-in's own code: copying a short name, allocating and freeing one, and a
// large block made, written and freed again, as the steps over a whole project make their
// vectors. Where the runtime takes that block from memory the process already has, the pages
// cost little; where it asks the system for fresh memory, every page costs a page fault.
#pragma once

#include "scale_results.h"

namespace tx::bench {

struct runtime_operation {
  const char* key;    // «runtime.<key>.ns» in the results
  const char* label;  // in the table
};

inline constexpr runtime_operation runtime_operations[] = {
    {"copy", "copy a 40-unit name into a buffer with room (memcpy)"},
    {"allocate", "allocate a 40-unit name (operator new → malloc)"},
    {"free", "free it again (operator delete → free)"},
    {"large_block", "make a 32 MiB block, write each 4 KiB page, free it (per page)"}};

// Measures each, the median of a few passes (of a million calls; of every page of the block), in
// nanoseconds per call.
void measure_runtime(scale_results& results);

}  // namespace tx::bench
