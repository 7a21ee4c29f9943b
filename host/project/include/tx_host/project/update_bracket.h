// The recursive update bracket: begins and ends nest, and the notifications the project raises
// when a caption changes are held back while a bracket is open, then delivered together when
// the outermost one closes. Every call is counted for the tests.
#pragma once

#include <cstddef>

#include "tx_host/project.h"

namespace tx::host {

class update_bracket {
 public:
  void begin(tx_entity* entity) noexcept;
  // An end without a matching begin is counted and changes nothing else.
  void end() noexcept;
  // A caption changed: delivered now, or held back while a bracket is open.
  void notify() noexcept;

  std::size_t depth() const noexcept { return state_.depth; }
  const tx_host_update_bracket& state() const noexcept { return state_; }
  // Forgets the counts; the open brackets and what they hold back stay.
  void clear_counts() noexcept;

 private:
  tx_host_update_bracket state_{};
};

}  // namespace tx::host
