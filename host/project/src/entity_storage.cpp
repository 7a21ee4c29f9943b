#include "tx_host/project/entity_storage.h"

#include <algorithm>
#include <bit>

namespace tx::host {

std::size_t entity_storage::home(std::uint64_t uuid) const noexcept {
  // The finaliser of splitmix64, so that neighbouring uuids land far apart.
  std::uint64_t x = uuid;
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9u;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebu;
  return static_cast<std::size_t>(x ^ (x >> 31)) & (slots_.size() - 1);
}

void entity_storage::index(tx_prj& project) {
  std::vector<tx_entity*> elements;
  for_each_element(project, [&elements](tx_entity& entity) {
    if (entity.uuid.opaque != 0) elements.push_back(&entity);
  });
  std::vector<slot> table(std::bit_ceil(std::max<std::size_t>(elements.size() * 2, 16)));
  // Nothing below fails.
  elements_.swap(elements);
  slots_.swap(table);
  next_guess_ = 0;
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t position = 0; position < elements_.size(); ++position) {
    const std::uint64_t uuid = elements_[position]->uuid.opaque;
    std::size_t i = home(uuid);
    while (slots_[i].uuid != 0) i = (i + 1) & mask;
    slots_[i] = {uuid, position};
  }
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
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = home(uuid.opaque);; i = (i + 1) & mask) {
    if (slots_[i].uuid == 0) return nullptr;
    if (slots_[i].uuid == uuid.opaque) {
      next_guess_ = slots_[i].position + 1;
      return elements_[slots_[i].position];
    }
  }
}

void entity_storage::erase(std::uint64_t uuid) noexcept {
  if (uuid == 0 || slots_.empty()) return;
  const std::size_t mask = slots_.size() - 1;
  std::size_t hole = home(uuid);
  while (slots_[hole].uuid != uuid) {
    if (slots_[hole].uuid == 0) return;
    hole = (hole + 1) & mask;
  }
  elements_[slots_[hole].position] = nullptr;
  // Backward shift: each later slot of the run that may not sit before its home moves into the
  // hole, so no lookup ever stops early at it.
  for (std::size_t next = (hole + 1) & mask; slots_[next].uuid != 0; next = (next + 1) & mask) {
    const std::size_t wanted = home(slots_[next].uuid);
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
  next_guess_ = 0;
}

}  // namespace tx::host
