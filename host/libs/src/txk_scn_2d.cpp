// txk_scn_2d: 2D scene collections (the project's 2D scenes, its layouts, plug-ins'
// collections) and scenes, read from the nodes they are handed.
#include "tx/host/txk_scn_2d.h"

#include "caption.h"

uint32_t tx_scns_2d_get_size(tx_scns_2d* collection) {
  return collection != nullptr ? static_cast<uint32_t>(collection->scenes.size()) : 0;
}

tx_scn* tx_scns_2d_get(tx_scns_2d* collection, uint32_t index) {
  if (collection == nullptr || index >= collection->scenes.size()) return nullptr;
  return collection->scenes[index];
}

const char* tx_scns_2d_get_meta_id(tx_scns_2d* collection) {
  return collection != nullptr ? collection->meta_id.c_str() : nullptr;
}

tx_entities* tx_scns_2d_safe_upcast(tx_scns_2d* collection) { return collection; }

tx_entities* tx_scn_safe_upcast(tx_scn* scene) { return scene; }

tx_lr_group* tx_scn_get_lr_group_ptr(tx_scn* scene) {
  return scene != nullptr ? scene->layers : nullptr;
}

void tx_scn_get_wcaption(tx_scn* scene, tx_string_adp* adapter) {
  tx::host::write_caption(scene, adapter);
}
