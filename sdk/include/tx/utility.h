/* Utilities: commands that a plug-in adds to the host, published through a utility service. */
#ifndef TX_UTILITY_H
#define TX_UTILITY_H

#include "tx/abi.h"

TX_BEGIN_DECLS

/* One command. Implemented by the plug-in; valid while the utility service that visited it
   lives. All operations on the UI thread. */
#define TX_UTILITY_INTERFACE_4 "tx_utility_interface_4"
typedef struct tx_utility_interface_4 {
  tx_root_fn root;
  /* Hands the caption to a tx_string_visitor_interface_0; false when it has none. */
  bool (*caption)(void* self, tx_custom_pointer visitor);
  /* Hands the image to a tx_thrice_interleaved_bytes_visitor_interface_0; false when none. */
  bool (*image)(void* self, tx_custom_pointer visitor);
  /* Stores the host's 8-byte value, passed back to the availability check. */
  void (*set_host_handle)(void* self, uint64_t handle);
  /* Whether the command can run now. */
  bool (*is_available)(void* self);
  /* Runs the command; returns when its modal dialog has closed. */
  void (*run)(void* self);
  /* Does nothing. */
  void (*reserved_6)(void* self);
  /* Stores the host's reference (borrowed, kept until replaced). */
  void (*set_host_reference)(void* self, tx_custom_pointer reference);
} tx_utility_interface_4;

/* Receives the commands of a utility service. Implemented by the host. */
#define TX_UTILITY_VISITOR_INTERFACE_2 "tx_utility_visitor_interface_2"
typedef struct tx_utility_visitor_interface_2 {
  tx_root_fn root;
  /* `id`: the command's identifier, valid during the call; `utility`: a
     tx_utility_interface_4 pair, valid while the service lives. */
  void (*visit)(void* self, const char16_t* id, tx_custom_pointer utility);
} tx_utility_visitor_interface_2;

/* A plug-in's utility service; a referent the host attaches to. */
#define TX_UTILITY_SERVICE_INTERFACE_2 "tx_utility_service_interface_2"
typedef struct tx_utility_service_interface_2 {
  tx_root_fn root;
  /* The service's tx_referent_interface_1 pair: attach to keep the service alive. */
  tx_custom_pointer (*referent)(void* self);
  /* Calls `visitor` (tx_utility_visitor_interface_2) once per command. */
  void (*visit_utilities)(void* self, tx_custom_pointer visitor);
} tx_utility_service_interface_2;

/* Receives a published utility service. Implemented by the host. */
#define TX_UTILITY_SERVICE_VISITOR_INTERFACE_2 "tx_utility_service_visitor_interface_2"
typedef struct tx_utility_service_visitor_interface_2 {
  tx_root_fn root;
  /* `service`: a tx_utility_service_interface_2 pair; valid during the call, longer only
     after the host attaches itself through the service's referent. */
  void (*visit)(void* self, tx_custom_pointer service);
} tx_utility_service_visitor_interface_2;

TX_STATIC_ASSERT(sizeof(tx_utility_interface_4) == 8 * sizeof(void*), "8 slots");
TX_STATIC_ASSERT(sizeof(tx_utility_visitor_interface_2) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_utility_service_interface_2) == 3 * sizeof(void*), "3 slots");
TX_STATIC_ASSERT(sizeof(tx_utility_service_visitor_interface_2) == 2 * sizeof(void*), "2 slots");

TX_END_DECLS

#endif
