// Entity uuids as the plug-in keeps them: hashed and compared only through the host.
#pragma once

#include <cstddef>
#include <vector>

#include "tx/host/txk_entity.h"

namespace tx {

struct uuid_hash {
  std::size_t operator()(tx_uuid uuid) const noexcept { return tx_uuid_hash(uuid); }
};
struct uuid_equal {
  bool operator()(tx_uuid a, tx_uuid b) const noexcept { return tx_uuid_equal(a, b); }
};

// The null uuid: a node that stands for no renameable element.
inline constexpr tx_uuid null_uuid{0};
inline bool is_null(tx_uuid uuid) noexcept { return tx_uuid_equal(uuid, null_uuid); }

// The ticked renameable elements, collected from the tree in its order. Every element is one
// node of the tree, so a uuid comes once, except where a scene collects through its group list
// (a nested group is then reached twice); the name store processes a uuid at most once per
// step either way, so the list behaves as a set.
using uuid_set = std::vector<tx_uuid>;

}  // namespace tx
