/* The docker: the frame that carries a dialog's content, with its caption and picture. */
#ifndef TX_TOOLKIT_DOCKER_H
#define TX_TOOLKIT_DOCKER_H

#include "tx/toolkit/element.h"

TX_BEGIN_DECLS

/* A frame around one content element. Implemented by the plug-in; valid while the dialog that
   shows it is open. */
#define TX_DOCKER_INTERFACE_92 "tx_docker_interface_92"
typedef struct tx_docker_interface_92 {
  tx_root_fn root;
  /* The frame's picture to a bytes visitor (top row first); false, calling nothing, if none. */
  bool (*image)(void* self, tx_custom_pointer visitor);
  /* The frame's caption to a string visitor; false, calling nothing, when it has none. */
  bool (*caption)(void* self, tx_custom_pointer visitor);
  /* Hands the content's layout element (valid while the frame lives) to an element visitor. */
  void (*visit_content)(void* self, tx_custom_pointer visitor);
  /* The frame's options for the host's toolkit, passed through unchanged. */
  uint32_t (*flags)(void* self);
  /* The frame's identifier among the host's frames; 0xFFFFFFFF: none (a dialog's frame). */
  uint32_t (*id)(void* self);
  /* Stores the host's counterpart of the frame (borrowed, never called), until replaced. */
  void (*set_host_reference)(void* self, tx_custom_pointer reference);
} tx_docker_interface_92;

#define TX_DOCKER_NO_ID 0xFFFFFFFFu

TX_STATIC_ASSERT(sizeof(tx_docker_interface_92) == 7 * sizeof(void*), "7 slots");

TX_END_DECLS

#endif
