#include "tx_host/project/entity_storage.h"

#include <algorithm>

namespace tx::host {

std::uint32_t entity_storage::hash(std::uint64_t uuid) noexcept {
  // The finaliser of splitmix64, so that neighbouring uuids land far apart.
  std::uint64_t x = uuid;
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9u;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebu;
  return static_cast<std::uint32_t>(x ^ (x >> 31));
}

std::size_t entity_storage::slot_of(std::uint64_t uuid, std::uint32_t hashed) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = hashed & mask;
  while (slots_[i].position != slot::free &&
         (slots_[i].hash != hashed || elements_[slots_[i].position]->uuid.opaque != uuid)) {
    i = (i + 1) & mask;
  }
  return i;
}

void entity_storage::grow() {
  std::vector<slot> table(std::max<std::size_t>(16, slots_.size() * 2));
  // Nothing below fails.
  slots_.swap(table);
  const std::size_t mask = slots_.size() - 1;
  for (const slot& moved : table) {
    if (moved.position == slot::free) continue;
    std::size_t i = moved.hash & mask;
    while (slots_[i].position != slot::free) i = (i + 1) & mask;
    slots_[i] = moved;
  }
}

std::optional<std::size_t> entity_storage::add(tx_entity& entity) {
  if (2 * (live_ + 1) > slots_.size()) grow();
  const std::uint32_t hashed = hash(entity.uuid.opaque);
  const std::size_t i = slot_of(entity.uuid.opaque, hashed);
  if (slots_[i].position != slot::free) return slots_[i].position;
  elements_.push_back(&entity);
  slots_[i] = {static_cast<std::uint32_t>(elements_.size() - 1), hashed};
  ++live_;
  return std::nullopt;
}

tx_entity* entity_storage::find(tx_uuid uuid) const noexcept {
  if (uuid.opaque == 0 || slots_.empty()) return nullptr;
  if (next_guess_ < elements_.size()) {
    tx_entity* guess = elements_[next_guess_];
    if (guess != nullptr && guess->uuid.opaque == uuid.opaque) {
      ++next_guess_;
      return guess;
    }
  }
  const slot& found = slots_[slot_of(uuid.opaque, hash(uuid.opaque))];
  if (found.position == slot::free) return nullptr;
  next_guess_ = found.position + std::size_t{1};
  return elements_[found.position];
}

void entity_storage::erase(std::uint64_t uuid) noexcept {
  if (uuid == 0 || slots_.empty()) return;
  const std::size_t mask = slots_.size() - 1;
  std::size_t hole = slot_of(uuid, hash(uuid));
  if (slots_[hole].position == slot::free) return;
  elements_[slots_[hole].position] = nullptr;
  --live_;
  // Backward shift: each later slot of the run that may not sit before its home moves into the
  // hole, so no lookup ever stops early at it.
  for (std::size_t next = (hole + 1) & mask; slots_[next].position != slot::free;
       next = (next + 1) & mask) {
    const std::size_t wanted = slots_[next].hash & mask;
    const bool stays = hole <= next ? hole < wanted && wanted <= next  // no wrap in between
                                    : hole < wanted || wanted <= next;
    if (stays) continue;
    slots_[hole] = slots_[next];
    hole = next;
  }
  slots_[hole] = slot{};
}

void entity_storage::forget(tx_scn& scene) noexcept {
  auto erase_one = [this](tx_entity& entity) { erase(entity.uuid.opaque); };
  for_each_in_scene(scene, erase_one);
}

void entity_storage::forget(tx_lr_group& group) noexcept {
  auto erase_one = [this](tx_entity& entity) { erase(entity.uuid.opaque); };
  for_each_in_group(group, erase_one);
}

void entity_storage::clear() noexcept {
  elements_.clear();
  slots_.clear();
  live_ = 0;
  next_guess_ = 0;
}

}  // namespace tx::host
