/* txk_scn_2d: 2D scene collections and scenes. */
#ifndef TX_HOST_TXK_SCN_2D_H
#define TX_HOST_TXK_SCN_2D_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

TX_HOST_API uint32_t tx_scns_2d_get_size(tx_scns_2d* collection);
/* The scene at `index` (below the size). */
TX_HOST_API tx_scn* tx_scns_2d_get(tx_scns_2d* collection, uint32_t index);
/* The collection's meta id: a NUL-terminated narrow string owned by the host. */
TX_HOST_API const char* tx_scns_2d_get_meta_id(tx_scns_2d* collection);
/* The collection as a generic entity collection. */
TX_HOST_API tx_entities* tx_scns_2d_safe_upcast(tx_scns_2d* collection);
/* A scene (2D or 3D) as a generic entity holder. */
TX_HOST_API tx_entities* tx_scn_safe_upcast(tx_scn* scene);
/* The scene's root layer group, or null. */
TX_HOST_API tx_lr_group* tx_scn_get_lr_group_ptr(tx_scn* scene);
/* Writes the scene's caption into `adapter`. */
TX_HOST_API void tx_scn_get_wcaption(tx_scn* scene, tx_string_adp* adapter);

TX_END_DECLS

#endif
