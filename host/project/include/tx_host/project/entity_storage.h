// The entity storage: every live scene, layer group and layer of the open project by its uuid.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "tx_host/project/nodes.h"

namespace tx::host {

// The elements in project order, and an open-addressing hash table (linear probing, at most half
// full) from uuid to position in that order, in flat arrays: a lookup allocates nothing. A
// lookup first tries the element after the one found last, so a client that goes through the
// elements in project order (a walk over a tree built from the project, or over anything kept in
// that order) reads the elements one after the other instead of jumping through the table.
class entity_storage {
 public:
  // Indexes every element of `project` that has a uuid (uuids are unique: the reader checked).
  void index(tx_prj& project);
  // The element with `uuid`, or null (always for the null uuid).
  tx_entity* find(tx_uuid uuid) const noexcept;
  // Forgets `entity` and everything beneath it: they are no longer part of the project.
  void forget(tx_scn& scene) noexcept;
  void forget(tx_lr_group& group) noexcept;
  void clear() noexcept;

 private:
  struct slot {
    std::uint64_t uuid = 0;  // 0: free
    std::size_t position = 0;
  };

  std::size_t home(std::uint64_t uuid) const noexcept;
  void erase(std::uint64_t uuid) noexcept;

  std::vector<tx_entity*> elements_;  // in project order; null once forgotten
  std::vector<slot> slots_;           // a power of two of them, or none
  mutable std::size_t next_guess_ = 0;
};

}  // namespace tx::host
