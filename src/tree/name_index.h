// The name store's index: from an element's uuid to the position of its entry.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "tree/text_arena.h"
#include "tree/uuid.h"

namespace tx {

// One entry of the name store.
struct prjrename_name {
  tx_uuid uuid;
  prjrename_text old_name;    // the host's caption when the entry was created; never updated
  prjrename_text new_name;    // the pending name; may be empty
  std::uint64_t touched = 0;  // the serial of the latest applied step that changed the entry
};

// An open-addressing hash table (linear probing, at most half full) of entry positions, with no
// allocation per entry. A slot keeps the position and the low 32 bits of the uuid's hash (the
// host's tx_uuid_hash): a probe reads an entry only when the hash matches, and growing the table
// or erasing places the slots again without hashing anything. The uuid of each position is read
// from the entries it is handed, which must be the ones it indexes, and compared with
// tx_uuid_equal.
class prjrename_name_index {
 public:
  static constexpr std::uint32_t absent = 0xFFFFFFFFu;

  // The position of the entry of `uuid`, or `absent`.
  std::uint32_t find(tx_uuid uuid, std::span<const prjrename_name> entries) const noexcept;
  // Makes room for `count` entries without growing. Throws std::length_error past 2^32 - 2.
  void reserve(std::size_t count);
  // Places the last of `entries`, whose uuid is not indexed yet; room must have been reserved.
  void insert_last(std::span<const prjrename_name> entries) noexcept;
  // Starts loading the slot where a lookup of `uuid` begins, for a loop that will get there a
  // few elements later: the loop's cache misses then overlap instead of following each other.
  void prefetch(tx_uuid uuid) const noexcept {
#if defined(__GNUC__)
    if (!slots_.empty()) __builtin_prefetch(&slots_[home(hash_of(uuid))]);
#endif
  }
  // Forgets the entry at `position` (still in `entries`).
  void erase(std::uint32_t position, std::span<const prjrename_name> entries) noexcept;
  // Places every one of `entries` afresh, after they moved.
  void rebuild(std::span<const prjrename_name> entries) noexcept;

 private:
  struct slot {
    std::uint32_t position = absent;
    std::uint32_t hash = 0;
  };

  static std::uint32_t hash_of(tx_uuid uuid) noexcept {
    return static_cast<std::uint32_t>(uuid_hash{}(uuid));
  }
  std::size_t home(std::uint32_t hash) const noexcept { return hash & (slots_.size() - 1); }
  void place(std::uint32_t position, std::uint32_t hash) noexcept;

  std::vector<slot> slots_;  // a power of two of them, or none
};

}  // namespace tx
