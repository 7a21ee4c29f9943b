// The entity storage: every live scene, layer group and layer of the open project by its uuid.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "tx_host/project/nodes.h"

namespace tx::host {

// The elements in the order they were added (the reader adds them in the file's order, which is
// the project's), and an open-addressing hash table (linear probing, at most half full) of
// positions in that order with 32 bits of their uuid's hash, both flat arrays: at most 24 bytes
// an element, a lookup that allocates nothing, and an element looked at only when its hash
// matches. A lookup first tries the element after the one found last, so a client that goes
// through the elements in project order (a walk over a tree built from the project, or over
// anything kept in that order) reads the elements one after the other instead of jumping
// through the table.
class entity_storage {
 public:
  // Adds `entity` (whose uuid is not null) as the next element, unless an element already has
  // its uuid: then nothing is added and the answer is that element's position (counted from 0
  // in the order of adding).
  std::optional<std::size_t> add(tx_entity& entity);
  // The element with `uuid`, or null (always for the null uuid).
  tx_entity* find(tx_uuid uuid) const noexcept;
  // Forgets `entity` and everything beneath it: they are no longer part of the project.
  void forget(tx_scn& scene) noexcept;
  void forget(tx_lr_group& group) noexcept;
  void clear() noexcept;

 private:
  struct slot {
    std::uint32_t position = free;  // in elements_
    std::uint32_t hash = 0;         // the low 32 bits of the uuid's hash; its home slot too
    static constexpr std::uint32_t free = UINT32_MAX;
  };

  static std::uint32_t hash(std::uint64_t uuid) noexcept;
  // The slot that holds `uuid`, or the free slot where it would go.
  std::size_t slot_of(std::uint64_t uuid, std::uint32_t hashed) const noexcept;
  void grow();
  void erase(std::uint64_t uuid) noexcept;

  std::vector<tx_entity*> elements_;  // in the order added; null once forgotten
  std::vector<slot> slots_;           // a power of two of them, or none
  std::size_t live_ = 0;              // slots in use
  mutable std::size_t next_guess_ = 0;
};

}  // namespace tx::host
