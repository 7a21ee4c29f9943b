/* txk_scn_3d: 3D scene collections. */
#ifndef TX_HOST_TXK_SCN_3D_H
#define TX_HOST_TXK_SCN_3D_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

TX_HOST_API uint32_t tx_scns_3d_get_size(tx_scns_3d* collection);
/* The scene at `index` (below the size). */
TX_HOST_API tx_scn* tx_scns_3d_get(tx_scns_3d* collection, uint32_t index);
/* The collection as a generic entity collection. */
TX_HOST_API tx_entities* tx_scns_3d_safe_upcast(tx_scns_3d* collection);

TX_END_DECLS

#endif
