/* A picture shown as an element of a layout. */
#ifndef TX_TOOLKIT_BITMAP_H
#define TX_TOOLKIT_BITMAP_H

#include "tx/toolkit/element.h"

TX_BEGIN_DECLS

/* Implemented by the plug-in. The view is told TX_CHANGED_VALUE when the picture changes and
   TX_CHANGED_TEXTS when the hint does. */
#define TX_BITMAP_INTERFACE_0 "tx_bitmap_interface_0"
typedef struct tx_bitmap_interface_0 {
  tx_root_fn root;
  /* The pixels to a bytes visitor (top row first); false, calling nothing, if there are none. */
  bool (*pixels)(void* self, tx_custom_pointer visitor);
  /* The text shown when the pointer rests on the picture. */
  bool (*hint)(void* self, tx_custom_pointer visitor);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_bitmap_interface_0;

TX_STATIC_ASSERT(sizeof(tx_bitmap_interface_0) == 4 * sizeof(void*), "4 slots");

TX_END_DECLS

#endif
