// The caption getters of every host library: the entity's caption handed to the caller's string
// through its adapter. A null entity leaves the string as it is.
#pragma once

#include "tx_host/basic.h"
#include "tx_host/project/nodes.h"

namespace tx::host {

inline void write_caption(const tx_entity* entity, tx_string_adp* adapter) {
  if (entity == nullptr) return;
  tx_host_string_adp_assign(adapter, entity->caption.data(), entity->caption.size());
}

}  // namespace tx::host
