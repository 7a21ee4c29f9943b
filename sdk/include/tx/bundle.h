/* The plug-in's front door: the exported entry, the bundle table it hands out, the visitor
   through which the host learns the plug-in's service factories, and a factory's table. */
#ifndef TX_BUNDLE_H
#define TX_BUNDLE_H

#include "tx/abi.h"

TX_BEGIN_DECLS

/* Receives one registered service factory per call. Implemented by the host. */
#define TX_SERVICE_VISITOR_INTERFACE_0 "tx_service_visitor_interface_0"
typedef struct tx_service_visitor_interface_0 {
  tx_root_fn root;
  /* `key`: the factory's namespace key, owned by the plug-in, valid during the call.
     `factory`: a tx_service_factory_table pair, valid until the plug-in is unloaded. */
  void (*visit)(void* self, const char16_t* key, tx_custom_pointer factory);
} tx_service_visitor_interface_0;

/* A service factory as the bundle hands it out. No interface name: it is reached only through
   the bundle. */
typedef struct tx_service_factory_table {
  tx_root_fn root;
  /* `registry`: the host's tx_service_registry_interface_0, borrowed for the call.
     `visitor`: the host's receiver of published services; the factory asks its root for the
     visitor interface of what it publishes (utility services, modal dialog services) and may
     keep that pair until it is unloaded. UI thread. */
  void (*visit)(void* self, tx_custom_pointer registry, tx_custom_pointer visitor);
} tx_service_factory_table;

/* The bundle table, six slots. Slots 2 to 5 are all the empty exported function
   scary_vcl_bug_crashes_everything_on_unloading: calling them any number of times does nothing. */
typedef struct tx_bundle_table {
  /* The bundle's root: answers no interface name. */
  tx_root_fn root;
  /* Calls `visitor` (tx_service_visitor_interface_0) once per registered factory in
     registration order. `self` is ignored; a visitor with a null half visits nothing. */
  void (*visit_services)(void* self, tx_custom_pointer visitor);
  void (*reserved_2)(void);
  void (*reserved_3)(void);
  void (*reserved_4)(void);
  void (*reserved_5)(void);
} tx_bundle_table;

TX_STATIC_ASSERT(sizeof(tx_service_visitor_interface_0) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_service_factory_table) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_bundle_table) == 6 * sizeof(void*), "6 slots");

/* The two exports of every plug-in, undecorated. */
#define TX_BUNDLE_ENTRY_NAME "tx_bundle_interface_to_custom_pointer"
#define TX_BUNDLE_NOOP_NAME "scary_vcl_bug_crashes_everything_on_unloading"

/* Returns {bundle table, context}: the object half is the host's own argument. Allocates
   nothing and cannot fail. The table lives as long as the library. */
typedef tx_custom_pointer (*tx_bundle_entry_fn)(void* context);

#ifdef TX_BUILDING_PLUGIN
TX_PLUGIN_EXPORT tx_custom_pointer tx_bundle_interface_to_custom_pointer(void* context);
TX_PLUGIN_EXPORT void scary_vcl_bug_crashes_everything_on_unloading(void);
#endif

TX_END_DECLS

#endif
