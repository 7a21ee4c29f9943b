// The memory the whole process holds, as the system counts it: the host's project and every
// runtime included, not only the plug-in's heap that heap_counter measures.
#pragma once

#include <cstddef>

namespace tx::bench {

// The most resident memory (working set) the process has had so far, in bytes; 0 when the
// system does not tell.
std::size_t peak_resident_bytes() noexcept;

}  // namespace tx::bench
