/* Modal dialogs: the plug-in publishes a modal dialog service that names its dialogs; the host
   gives each dialog a view through which the plug-in shows its content modally. */
#ifndef TX_MODAL_DIALOG_H
#define TX_MODAL_DIALOG_H

#include "tx/abi.h"

TX_BEGIN_DECLS

/* The host's side of one modal dialog. Implemented by the host. */
#define TX_MODAL_DIALOG_VIEW_INTERFACE_101 "tx_modal_dialog_view_interface_101"
typedef struct tx_modal_dialog_view_interface_101 {
  tx_root_fn root;
  /* Shows `content` (a docker element) with `buttons` (a button box) and runs the host's
     modal loop until the dialog closes; both pairs are borrowed for the call. Returns the
     index of the button that closed it, or -1 for the frame's close box. UI thread. */
  int32_t (*show)(void* self, tx_custom_pointer content, tx_custom_pointer buttons);
} tx_modal_dialog_view_interface_101;

/* One dialog of the plug-in. Implemented by the plug-in; valid while its service lives. */
#define TX_MODAL_DIALOG_INTERFACE_101 "tx_modal_dialog_interface_101"
typedef struct tx_modal_dialog_interface_101 {
  tx_root_fn root;
  /* Stores the host's tx_modal_dialog_view_interface_101 pair (borrowed; the host keeps it
     alive until it sets another or unloads the plug-in). A null pair removes it. */
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_modal_dialog_interface_101;

/* Receives the dialogs of a modal dialog service. Implemented by the host. */
#define TX_MODAL_DIALOG_VISITOR_INTERFACE_101 "tx_modal_dialog_visitor_interface_101"
typedef struct tx_modal_dialog_visitor_interface_101 {
  tx_root_fn root;
  /* `id`: the dialog's identifier, valid during the call; `dialog`: a
     tx_modal_dialog_interface_101 pair, valid while the service lives. */
  void (*visit)(void* self, const char16_t* id, tx_custom_pointer dialog);
} tx_modal_dialog_visitor_interface_101;

/* A plug-in's modal dialog service; a referent the host attaches to. */
#define TX_MODAL_DIALOG_SERVICE_INTERFACE_102 "tx_modal_dialog_service_interface_102"
typedef struct tx_modal_dialog_service_interface_102 {
  tx_root_fn root;
  /* The service's tx_referent_interface_1 pair. */
  tx_custom_pointer (*referent)(void* self);
  /* Calls `visitor` (tx_modal_dialog_visitor_interface_101) once per dialog. */
  void (*visit_dialogs)(void* self, tx_custom_pointer visitor);
} tx_modal_dialog_service_interface_102;

/* Receives a published modal dialog service. Implemented by the host. */
#define TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102 \
  "tx_modal_dialog_service_visitor_interface_102"
typedef struct tx_modal_dialog_service_visitor_interface_102 {
  tx_root_fn root;
  /* `service`: a tx_modal_dialog_service_interface_102 pair; as for utility services. */
  void (*visit)(void* self, tx_custom_pointer service);
} tx_modal_dialog_service_visitor_interface_102;

TX_STATIC_ASSERT(sizeof(tx_modal_dialog_view_interface_101) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_modal_dialog_interface_101) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_modal_dialog_visitor_interface_101) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_modal_dialog_service_interface_102) == 3 * sizeof(void*), "3 slots");
TX_STATIC_ASSERT(sizeof(tx_modal_dialog_service_visitor_interface_102) == 2 * sizeof(void*),
                 "2 slots");

TX_END_DECLS

#endif
