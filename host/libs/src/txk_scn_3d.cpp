// txk_scn_3d: the 3D scene collection, read from the node it is handed. Its scenes are scenes
// like the 2D ones, read through txk_scn_2d.
#include "tx/host/txk_scn_3d.h"

#include "tx_host/project/nodes.h"

uint32_t tx_scns_3d_get_size(tx_scns_3d* collection) {
  return collection != nullptr ? static_cast<uint32_t>(collection->scenes.size()) : 0;
}

tx_scn* tx_scns_3d_get(tx_scns_3d* collection, uint32_t index) {
  if (collection == nullptr || index >= collection->scenes.size()) return nullptr;
  return collection->scenes[index];
}

tx_entities* tx_scns_3d_safe_upcast(tx_scns_3d* collection) { return collection; }
