#include "tx_host/txhost/step_timer.h"

#include <string>

namespace tx::host {

void step_timer::report(std::string_view step) const {
  if (stream_ == nullptr) return;
  const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now() - start_);
  const std::string line =
      "txhost: " + std::string(step) + " took " + std::to_string(elapsed.count()) + " ms\n";
  std::fwrite(line.data(), 1, line.size(), stream_);
  std::fflush(stream_);
}

}  // namespace tx::host
