/* The row of buttons under a dialog's content: the plug-in says which buttons there are and
   whether a press may close the dialog; the host draws them and closes the dialog. */
#ifndef TX_TOOLKIT_BUTTON_BOX_H
#define TX_TOOLKIT_BUTTON_BOX_H

#include "tx/toolkit/element.h"

TX_BEGIN_DECLS

/* Implemented by the plug-in; valid while the dialog that shows it is open. Buttons are
   numbered 0 .. button_count - 1 in the order they are drawn. */
#define TX_BUTTON_BOX_INTERFACE_2 "tx_button_box_interface_2"
typedef struct tx_button_box_interface_2 {
  tx_root_fn root;
  /* Stores the host's first counterpart of the box (borrowed, never called), until replaced. */
  void (*set_host_reference)(void* self, tx_custom_pointer reference);
  /* Stores the host's second counterpart of the box; as the first. */
  void (*set_second_host_reference)(void* self, tx_custom_pointer reference);
  int32_t (*button_count)(void* self);
  /* Button `index`'s caption to a string visitor; false outside the buttons. */
  bool (*caption)(void* self, int32_t index, tx_custom_pointer visitor);
  /* Whether button `index` is shown; false outside the buttons. */
  bool (*shown)(void* self, int32_t index);
  /* Runs a press of button `index` (below zero: the frame's close box); answers whether the
     dialog may close (always below zero; never past the last button). */
  bool (*press)(void* self, int32_t index);
} tx_button_box_interface_2;

TX_STATIC_ASSERT(sizeof(tx_button_box_interface_2) == 7 * sizeof(void*), "7 slots");

TX_END_DECLS

#endif
