/* What every UI element shares: the host's view of an element, through which the element tells
   the host to re-read it, and the visitor through which elements are handed to the host.

   The plug-in describes its dialog as a tree of elements; the host creates the real controls
   and talks back through each element's interface. Every element interface ends with set_view:
   the host hands the element its tx_element_view_interface_0 pair (borrowed: the host keeps it
   alive until it sets another pair or a null one, which it must do before destroying it). A
   null pair means nobody is told of changes. Texts are resource references resolved when the
   host asks, through a tx_string_visitor_interface_0; a text operation answers false, calling
   no visitor, when the element has no such text. Every operation runs on the UI thread. */
#ifndef TX_TOOLKIT_ELEMENT_H
#define TX_TOOLKIT_ELEMENT_H

#include "tx/abi.h"

TX_BEGIN_DECLS

/* What changed, as told to the host's view (bits, combined). */
#define TX_CHANGED_VALUE 0x01u  /* the value: text, check, selection, number */
#define TX_CHANGED_ITEMS 0x02u  /* a drop-down's items or an input's history */
#define TX_CHANGED_STATE 0x04u  /* enabled or visible */
#define TX_CHANGED_LAYOUT 0x08u /* the cells of a layout or the shown entry of a stack */
#define TX_CHANGED_ROWS 0x10u   /* an outline's rows and cells: reload them all */
#define TX_CHANGED_TEXTS 0x20u  /* captions and other texts */

/* The host's counterpart of one element. Implemented by the host. */
#define TX_ELEMENT_VIEW_INTERFACE_0 "tx_element_view_interface_0"
typedef struct tx_element_view_interface_0 {
  tx_root_fn root;
  /* The element changed (`what`: TX_CHANGED_* bits): re-read what is named. Must not destroy
     the element; may call back into it. */
  void (*changed)(void* self, uint32_t what);
} tx_element_view_interface_0;

/* Receives elements: a pair of any element interface, whose root tells which one it is.
   Implemented by the host. */
#define TX_ELEMENT_VISITOR_INTERFACE_0 "tx_element_visitor_interface_0"
typedef struct tx_element_visitor_interface_0 {
  tx_root_fn root;
  /* `element`: owned by the plug-in, valid while the dialog that holds it lives. */
  void (*visit)(void* self, tx_custom_pointer element);
} tx_element_visitor_interface_0;

TX_STATIC_ASSERT(sizeof(tx_element_view_interface_0) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_element_visitor_interface_0) == 2 * sizeof(void*), "2 slots");

TX_END_DECLS

#endif
