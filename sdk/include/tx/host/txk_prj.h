/* txk_prj: the open project and the project-wide options. */
#ifndef TX_HOST_TXK_PRJ_H
#define TX_HOST_TXK_PRJ_H

#include "tx/host/handles.h"

TX_BEGIN_DECLS

/* The open project, or null when none is open. */
TX_HOST_API tx_prj* tx_prj_get_instance(void);
/* The project as an entity (the root of its update bracket). */
TX_HOST_API tx_entity* tx_prj_safe_upcast(tx_prj* project);
/* The project's 2D scene collection. */
TX_HOST_API tx_scns_2d* tx_prj_get_scns_2d_ptr(tx_prj* project);
/* The project's 3D scene collection. */
TX_HOST_API tx_scns_3d* tx_prj_get_scns_3d_ptr(tx_prj* project);
/* The project's layouts, as a 2D scene collection. */
TX_HOST_API tx_scns_2d* tx_prj_get_layouts_data_ptr(tx_prj* project);
/* Number of 2D scene collections that plug-ins added to the project. */
TX_HOST_API int32_t tx_prj_get_plugin_scns_2d_count(tx_prj* project);
/* The plug-in collection at `index`, or null. */
TX_HOST_API tx_scns_2d* tx_prj_get_plugin_scns_2d_ptr(tx_prj* project, int32_t index);
/* True when layer lists are shown in reverse order. */
TX_HOST_API bool tx_options_get_invert_layers(void);

TX_END_DECLS

#endif
