// Counts the heap allocations of the whole benchmark program: global operator new is replaced
// by one that counts and then calls malloc.
#pragma once

#include <cstddef>

namespace tx::bench {

// Allocations made so far through any form of operator new.
std::size_t allocation_count() noexcept;

}  // namespace tx::bench
