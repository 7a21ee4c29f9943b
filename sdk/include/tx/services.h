/* The host's service registry and the localizer it may offer: how a plug-in finds host services
   by namespace key and has its texts and images translated by the host. */
#ifndef TX_SERVICES_H
#define TX_SERVICES_H

#include "tx/abi.h"

TX_BEGIN_DECLS

/* Namespace keys of the host's services (fixed wide strings). */
#define TX_UTILITY_NAMESPACE_KEY u"tx.tarvex.service/utility" /* 25 characters */
#define TX_LOCALIZER_NAMESPACE_KEY u"tx.tarvex.service/localizer"

/* How a plug-in finds the host's localizer, in two calls of the host's:
   1. it asks the registry (tx_service_registry_interface_0) for the service under
      TX_LOCALIZER_NAMESPACE_KEY; the registry hands the localizer service to the plug-in's
      visitor, through tx_localizer_service_visitor_interface_1 when the visitor answers it, or
      else, like any service, through tx_service_registry_visitor_interface_0 with its key;
   2. it asks that localizer service (tx_localizer_service_interface_1) for the localizer of its
      module, named by a tx_localizer_client_interface_0, and receives it through a
      tx_localizer_visitor_interface_1. */

/* Receives a service found in the registry. Implemented by the asking side. */
#define TX_SERVICE_REGISTRY_VISITOR_INTERFACE_0 "tx_service_registry_visitor_interface_0"
typedef struct tx_service_registry_visitor_interface_0 {
  tx_root_fn root;
  /* `key` valid during the call; `service` a root-queryable pair owned by the host, valid
     while the host keeps the service registered (for the localizer: while the plug-in is
     loaded). */
  void (*visit)(void* self, const char16_t* key, tx_custom_pointer service);
} tx_service_registry_visitor_interface_0;

/* The host's registry of services. Implemented by the host. */
#define TX_SERVICE_REGISTRY_INTERFACE_0 "tx_service_registry_interface_0"
typedef struct tx_service_registry_interface_0 {
  tx_root_fn root;
  /* Calls `visitor` once with the service registered under `key`, if there is one; nothing
     otherwise. Under TX_LOCALIZER_NAMESPACE_KEY a visitor that answers
     tx_localizer_service_visitor_interface_1 is handed the service through it; any other
     visitor through tx_service_registry_visitor_interface_0. */
  void (*visit_service)(void* self, const char16_t* key, tx_custom_pointer visitor);
} tx_service_registry_interface_0;

/* A localizer: answers a plug-in's positive resource references in the host's language. */
#define TX_LOCALIZER_INTERFACE_1 "tx_localizer_interface_1"
typedef struct tx_localizer_interface_1 {
  tx_root_fn root;
  /* Text data (resource type 260) of `reference`, converted from `code_page`, to a
     tx_string_visitor_interface_0. Returns whether it was found. */
  bool (*load_text_data)(void* self, int32_t reference, tx_custom_pointer visitor,
                         uint32_t code_page);
  /* The string of `reference` to a tx_string_visitor_interface_0. Returns whether found. */
  bool (*load_string)(void* self, int32_t reference, tx_custom_pointer visitor);
  /* The bitmap of `reference` to a tx_thrice_interleaved_bytes_visitor_interface_0.
     Returns whether found. */
  bool (*load_bitmap)(void* self, int32_t reference, tx_custom_pointer visitor);
} tx_localizer_interface_1;

/* The plug-in as a client of the localizer: tells which module's texts are asked for. */
#define TX_LOCALIZER_CLIENT_INTERFACE_0 "tx_localizer_client_interface_0"
typedef struct tx_localizer_client_interface_0 {
  tx_root_fn root;
  /* The module's base name ("txk_project_rename"), owned by the plug-in, valid while loaded. */
  const char16_t* (*module_name)(void* self);
} tx_localizer_client_interface_0;

/* Receives the localizer service from the registry. Implemented by the plug-in. */
#define TX_LOCALIZER_SERVICE_VISITOR_INTERFACE_1 "tx_localizer_service_visitor_interface_1"
typedef struct tx_localizer_service_visitor_interface_1 {
  tx_root_fn root;
  /* `service`: a tx_localizer_service_interface_1 pair owned by the host, valid while the
     plug-in is loaded. */
  void (*visit)(void* self, tx_custom_pointer service);
} tx_localizer_service_visitor_interface_1;

/* Receives a localizer. Implemented by the plug-in. */
#define TX_LOCALIZER_VISITOR_INTERFACE_1 "tx_localizer_visitor_interface_1"
typedef struct tx_localizer_visitor_interface_1 {
  tx_root_fn root;
  /* `localizer`: a tx_localizer_interface_1 pair owned by the host, valid while the plug-in is
     loaded. */
  void (*visit)(void* self, tx_custom_pointer localizer);
} tx_localizer_visitor_interface_1;

/* The service registered under TX_LOCALIZER_NAMESPACE_KEY. Implemented by the host. */
#define TX_LOCALIZER_SERVICE_INTERFACE_1 "tx_localizer_service_interface_1"
typedef struct tx_localizer_service_interface_1 {
  tx_root_fn root;
  /* Calls `visitor` (tx_localizer_visitor_interface_1) with the localizer for the module that
     `client` (tx_localizer_client_interface_0) names; nothing when it has none. */
  void (*visit_localizer)(void* self, tx_custom_pointer client, tx_custom_pointer visitor);
} tx_localizer_service_interface_1;

TX_STATIC_ASSERT(sizeof(tx_service_registry_visitor_interface_0) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_service_registry_interface_0) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_localizer_interface_1) == 4 * sizeof(void*), "4 slots");
TX_STATIC_ASSERT(sizeof(tx_localizer_client_interface_0) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_localizer_service_visitor_interface_1) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_localizer_visitor_interface_1) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_localizer_service_interface_1) == 2 * sizeof(void*), "2 slots");

TX_END_DECLS

#endif
