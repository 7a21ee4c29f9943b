// The entity storage: every live scene, layer group and layer of the open project by its uuid.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "tx_host/project/nodes.h"

namespace tx::host {

class entity_storage {
 public:
  // Indexes every element of `project` that has a uuid (uuids are unique: the reader checked).
  void index(tx_prj& project);
  // The element with `uuid`, or null (always for the null uuid).
  tx_entity* find(tx_uuid uuid) const noexcept;
  // Forgets `entity` and everything beneath it: they are no longer part of the project.
  void forget(tx_scn& scene) noexcept;
  void forget(tx_lr_group& group) noexcept;
  void clear() noexcept { entities_.clear(); }

 private:
  std::unordered_map<std::uint64_t, tx_entity*> entities_;
};

}  // namespace tx::host
