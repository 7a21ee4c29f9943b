// txk_lr: layer groups and layers, read from the nodes they are handed.
#include "tx/host/txk_lr.h"

#include "caption.h"

uint32_t tx_lr_group_get_count_child(tx_lr_group* group) {
  return group != nullptr ? static_cast<uint32_t>(group->children().size()) : 0;
}

tx_lr_group* tx_lr_group_get_child_by_index(tx_lr_group* group, uint32_t index) {
  if (group == nullptr || index >= group->children().size()) return nullptr;
  return group->children()[index];
}

bool tx_lr_group_is_group(tx_lr_group* group) { return group != nullptr && group->is_group; }

bool tx_lr_group_get_expanded(tx_lr_group* group) { return group != nullptr && group->expanded; }

void tx_lr_group_get_wcaption(tx_lr_group* group, tx_string_adp* adapter) {
  tx::host::write_caption(group, adapter);
}

tx_entities* tx_lr_group_safe_upcast(tx_lr_group* group) { return group; }
