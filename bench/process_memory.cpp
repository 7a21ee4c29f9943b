#include "process_memory.h"

#ifdef _WIN32
#include <windows.h>
// windows.h first: psapi.h uses its types.
#include <psapi.h>
#else
#include <sys/resource.h>
#endif

namespace tx::bench {

std::size_t peak_resident_bytes() noexcept {
#ifdef _WIN32
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof counters;
  if (!GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters)) return 0;
  return counters.PeakWorkingSetSize;
#else
  rusage usage{};
  if (getrusage(RUSAGE_SELF, &usage) != 0) return 0;
  return static_cast<std::size_t>(usage.ru_maxrss) * 1024;  // Linux counts it in KiB
#endif
}

}  // namespace tx::bench
