/* An image with a colour plane and a mask plane, loaded from an icon or cursor resource. */
#ifndef TX_MASKED_BITMAP_H
#define TX_MASKED_BITMAP_H

#include "tx/abi.h"

TX_BEGIN_DECLS

#define TX_MASKED_BITMAP_INTERFACE_0 "tx_masked_bitmap_interface_0"
typedef struct tx_masked_bitmap_interface_0 {
  tx_root_fn root;
  int32_t (*width)(void* self);
  int32_t (*height)(void* self);
  /* Hands the 24-bit colour plane, top row first, to a
     tx_thrice_interleaved_bytes_visitor_interface_0; nothing when the image is empty. */
  void (*visit_colour)(void* self, tx_custom_pointer visitor);
  /* Hands the 8-bit mask plane, top row first; nothing when the image is empty. */
  void (*visit_mask)(void* self, tx_custom_pointer visitor);
} tx_masked_bitmap_interface_0;

/* Receives a masked bitmap. Implemented by the host. */
#define TX_MASKED_BITMAP_VISITOR_INTERFACE_0 "tx_masked_bitmap_visitor_interface_0"
typedef struct tx_masked_bitmap_visitor_interface_0 {
  tx_root_fn root;
  /* `bitmap`: a tx_masked_bitmap_interface_0 pair, owned by the plug-in, valid during the call. */
  void (*visit)(void* self, tx_custom_pointer bitmap);
} tx_masked_bitmap_visitor_interface_0;

TX_STATIC_ASSERT(sizeof(tx_masked_bitmap_interface_0) == 5 * sizeof(void*), "5 slots");
TX_STATIC_ASSERT(sizeof(tx_masked_bitmap_visitor_interface_0) == 2 * sizeof(void*), "2 slots");

TX_END_DECLS

#endif
