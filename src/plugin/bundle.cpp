// The plug-in's two exports and the bundle table.
#define TX_BUILDING_PLUGIN
#include "tx/bundle.h"

#include "plugin/service_factory.h"

namespace tx {
namespace {

// The bundle's root answers no interface name.
int bundle_query(void*, const char*, const void** table, void** object) noexcept {
  if (table != nullptr) *table = nullptr;
  if (object != nullptr) *object = nullptr;
  return 1;
}

constexpr tx_root_interface bundle_root_table{&bundle_query};

tx_custom_pointer bundle_root(void* self) noexcept { return {&bundle_root_table, self}; }

void visit_services(void*, tx_custom_pointer visitor) noexcept {
  if (!present(visitor)) return;
  try {
    // The visitor may call back into the plug-in: walk a copy of the registry.
    for (basic_service_factory_impl* factory : factory_registry::instance().entries()) {
      call<tx_service_visitor_interface_0>(visitor, &tx_service_visitor_interface_0::visit,
                                           factory->key().c_str(),
                                           pointer_to<service_factory_impl>(factory));
    }
  } catch (...) {
  }
}

constexpr tx_bundle_table bundle_table{
    &bundle_root,
    &visit_services,
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
};

}  // namespace
}  // namespace tx

extern "C" tx_custom_pointer tx_bundle_interface_to_custom_pointer(void* context) {
  return {&tx::bundle_table, context};
}

// Fills the bundle's slots 2 to 5. Its body must stay empty: hosts call it on unloading.
extern "C" void scary_vcl_bug_crashes_everything_on_unloading(void) {}
