// The heap bytes the whole benchmark program holds: global operator new and delete are replaced
// by ones that add and subtract each block's usable size (what malloc really set aside for it,
// at least the size asked for) and keep the highest total reached.
#pragma once

#include <cstddef>

namespace tx::bench {

// Bytes in blocks allocated through operator new and not yet freed.
std::size_t live_heap_bytes() noexcept;
// The highest live_heap_bytes() since the last reset_peak_heap_bytes().
std::size_t peak_heap_bytes() noexcept;
// Starts the peak afresh from the bytes live now.
void reset_peak_heap_bytes() noexcept;

}  // namespace tx::bench
