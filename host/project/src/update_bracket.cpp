#include "tx_host/project/update_bracket.h"

namespace tx::host {

void update_bracket::begin(tx_entity* entity) noexcept {
  ++state_.begins;
  ++state_.depth;
  state_.last_begin = entity;
}

void update_bracket::end() noexcept {
  ++state_.ends;
  if (state_.depth == 0) return;
  if (--state_.depth == 0) {
    state_.delivered += state_.deferred;
    state_.deferred = 0;
  }
}

void update_bracket::notify() noexcept {
  if (state_.depth > 0) {
    ++state_.deferred;
  } else {
    ++state_.delivered;
  }
}

void update_bracket::clear_counts() noexcept {
  state_.begins = 0;
  state_.ends = 0;
  state_.delivered = 0;
  state_.last_begin = nullptr;
}

}  // namespace tx::host
