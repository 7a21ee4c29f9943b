#include "tree/name_index.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace tx {

std::uint32_t prjrename_name_index::find(tx_uuid uuid,
                                         std::span<const prjrename_name> entries) const noexcept {
  if (slots_.empty()) return absent;
  const std::uint32_t hash = hash_of(uuid);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = home(hash);; i = (i + 1) & mask) {
    const slot& s = slots_[i];
    if (s.position == absent) return absent;
    if (s.hash == hash && uuid_equal{}(entries[s.position].uuid, uuid)) return s.position;
  }
}

void prjrename_name_index::reserve(std::size_t count) {
  constexpr std::size_t most = absent - 1;
  if (count > most) throw std::length_error("vector<T> too long");
  if (count * 2 <= slots_.size()) return;
  std::vector<slot> grown(std::bit_ceil(std::max<std::size_t>(count * 2, 16)));
  grown.swap(slots_);
  for (const slot& s : grown) {
    if (s.position != absent) place(s.position, s.hash);
  }
}

void prjrename_name_index::insert_last(std::span<const prjrename_name> entries) noexcept {
  place(static_cast<std::uint32_t>(entries.size() - 1), hash_of(entries.back().uuid));
}

void prjrename_name_index::place(std::uint32_t position, std::uint32_t hash) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = home(hash);
  while (slots_[i].position != absent) i = (i + 1) & mask;
  slots_[i] = {position, hash};
}

void prjrename_name_index::erase(std::uint32_t position,
                                 std::span<const prjrename_name> entries) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t hole = home(hash_of(entries[position].uuid));
  while (slots_[hole].position != position) hole = (hole + 1) & mask;
  // Backward shift: each later slot of the run that may not sit before its home moves into the
  // hole, so no probe ever stops early at it.
  for (std::size_t next = (hole + 1) & mask; slots_[next].position != absent;
       next = (next + 1) & mask) {
    const std::size_t wanted = home(slots_[next].hash);
    const bool stays = hole <= next ? hole < wanted && wanted <= next  // no wrap in between
                                    : hole < wanted || wanted <= next;
    if (stays) continue;
    slots_[hole] = slots_[next];
    hole = next;
  }
  slots_[hole] = slot{};
}

void prjrename_name_index::rebuild(std::span<const prjrename_name> entries) noexcept {
  std::fill(slots_.begin(), slots_.end(), slot{});
  for (std::size_t position = 0; position < entries.size(); ++position) {
    place(static_cast<std::uint32_t>(position), hash_of(entries[position].uuid));
  }
}

}  // namespace tx
