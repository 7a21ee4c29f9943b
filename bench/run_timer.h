// Times single calls with the steady clock and keeps every run, so that a measure reports the
// median run: one slow run (another process taking the core) moves it less than the mean. It
// also counts the heap allocations made inside the timed calls (heap_counter).
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

#include "heap_counter.h"

namespace tx::bench {

class run_timer {
 public:
  // Calls `operation` once and keeps how long it took; what surrounds the call is not timed.
  template <class Operation>
  void time(Operation&& operation) {
    const std::size_t allocations_before = allocation_count();
    const auto start = std::chrono::steady_clock::now();
    operation();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    allocations_ += allocation_count() - allocations_before;
    seconds_.push_back(elapsed.count());
  }

  std::size_t runs() const noexcept { return seconds_.size(); }

  // Allocations made inside the timed calls, on average per run; 0 before the first.
  double allocations_per_run() const noexcept {
    return seconds_.empty()
               ? 0
               : static_cast<double>(allocations_) / static_cast<double>(seconds_.size());
  }

  // The median of the runs so far, in seconds; 0 before the first.
  double median_seconds() const {
    if (seconds_.empty()) return 0;
    std::vector<double> sorted = seconds_;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t n = sorted.size();
    return n % 2 == 1 ? sorted[n / 2] : (sorted[n / 2 - 1] + sorted[n / 2]) / 2;
  }

 private:
  std::vector<double> seconds_;
  std::size_t allocations_ = 0;
};

}  // namespace tx::bench
