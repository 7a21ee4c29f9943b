// The heap of the whole benchmark program: global operator new and delete are replaced by ones
// that count the allocations and add and subtract each block's usable size (what malloc really
// set aside for it, at least the size asked for), keeping the highest total reached.
#pragma once

#include <cstddef>

namespace tx::bench {

// Allocations made so far through any form of operator new.
std::size_t allocation_count() noexcept;

// Bytes in blocks allocated through operator new and not yet freed.
std::size_t live_heap_bytes() noexcept;
// The highest live_heap_bytes() since the last reset_peak_heap_bytes().
std::size_t peak_heap_bytes() noexcept;
// Starts the peak afresh from the bytes live now.
void reset_peak_heap_bytes() noexcept;

}  // namespace tx::bench
