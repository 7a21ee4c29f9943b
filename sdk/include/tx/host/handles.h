/* Opaque handles to the host's project objects. Owned by the host; a plug-in never frees them
   and uses them only while the project they came from is open. */
#ifndef TX_HOST_HANDLES_H
#define TX_HOST_HANDLES_H

#include "tx/abi.h"

TX_BEGIN_DECLS

typedef struct tx_prj tx_prj;               /* the open project */
typedef struct tx_scns_2d tx_scns_2d;       /* a collection of 2D scenes (also layouts) */
typedef struct tx_scns_3d tx_scns_3d;       /* a collection of 3D scenes */
typedef struct tx_scn tx_scn;               /* one scene, 2D or 3D */
typedef struct tx_lr_group tx_lr_group;     /* a layer group; a layer is one that is not a group */
typedef struct tx_entities tx_entities;     /* a generic entity collection or holder */
typedef struct tx_entity tx_entity;         /* anything with a uuid and a caption */
typedef struct tx_progress tx_progress;     /* a progress indicator */
typedef struct tx_string_adp tx_string_adp; /* fills a caller-owned wide string */

TX_END_DECLS

#endif
