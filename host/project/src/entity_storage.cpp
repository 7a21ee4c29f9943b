#include "tx_host/project/entity_storage.h"

namespace tx::host {

void entity_storage::index(tx_prj& project) {
  entities_.clear();
  for_each_element(project, [this](tx_entity& entity) {
    if (entity.uuid.opaque != 0) entities_.emplace(entity.uuid.opaque, &entity);
  });
}

tx_entity* entity_storage::find(tx_uuid uuid) const noexcept {
  if (uuid.opaque == 0) return nullptr;
  const auto found = entities_.find(uuid.opaque);
  return found != entities_.end() ? found->second : nullptr;
}

void entity_storage::forget(tx_scn& scene) noexcept {
  auto erase = [this](tx_entity& entity) { entities_.erase(entity.uuid.opaque); };
  for_each_in_scene(scene, erase);
}

void entity_storage::forget(tx_lr_group& group) noexcept {
  auto erase = [this](tx_entity& entity) { entities_.erase(entity.uuid.opaque); };
  for_each_in_group(group, erase);
}

}  // namespace tx::host
