// txhost --timings: how long a step on the project file took, told on one line of standard
// error in plain words, e.g. "txhost: opening city.json took 12 ms".
#pragma once

#include <chrono>
#include <cstdio>
#include <string_view>

namespace tx::host {

class step_timer {
 public:
  // Starts timing; `stream` null: report() prints nothing.
  explicit step_timer(std::FILE* stream) noexcept
      : stream_(stream), start_(std::chrono::steady_clock::now()) {}

  // Prints "txhost: STEP took N ms" with the whole milliseconds since the start.
  void report(std::string_view step) const;

 private:
  std::FILE* stream_;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace tx::host
