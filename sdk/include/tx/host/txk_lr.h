/* txk_lr: layer groups and layers. */
#ifndef TX_HOST_TXK_LR_H
#define TX_HOST_TXK_LR_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

TX_HOST_API uint32_t tx_lr_group_get_count_child(tx_lr_group* group);
/* The child at `index` (below the count). */
TX_HOST_API tx_lr_group* tx_lr_group_get_child_by_index(tx_lr_group* group, uint32_t index);
/* True for a group (can hold children), false for a layer. */
TX_HOST_API bool tx_lr_group_is_group(tx_lr_group* group);
/* The host's expanded state of the group in its own layer tree. */
TX_HOST_API bool tx_lr_group_get_expanded(tx_lr_group* group);
/* Writes the group's caption into `adapter`. */
TX_HOST_API void tx_lr_group_get_wcaption(tx_lr_group* group, tx_string_adp* adapter);
/* The group as a generic entity holder. */
TX_HOST_API tx_entities* tx_lr_group_safe_upcast(tx_lr_group* group);

TX_END_DECLS

#endif
