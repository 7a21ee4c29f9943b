// A minimal plug-in for the reference host's loader tests. One factory, filed under the utility
// key, asks the host's registry for the localizer, then publishes a utility service with one
// command ("tx_fake_utility") and a modal dialog service with no dialogs. Both services are
// referents the host attaches to; the plug-in keeps its own hold on them, so they outlive the
// host's. The command's caption comes from the localizer when the host gave one, otherwise
// from the language offset. Probes exported for the tests tell what the host did.
#define TX_BUILDING_PLUGIN
#include "plugin_doubles.h"
#include "tx/bundle.h"
#include "tx/host/txk_basic.h"

namespace {

using tx::test::ask;
using tx::test::no_interfaces;
using tx::test::ops;

tx::test::localizer_client g_client{{}, u"tx_fake_plugin"};
tx::test::pair_sink g_localizers;  // what the host's localizer service handed over

const tx_utility_interface_4 kCommandTable{
    &no_interfaces,
    [](void*, tx_custom_pointer visitor) {
      if (!g_localizers.pairs.empty()) {
        const tx_custom_pointer localizer = g_localizers.pairs.back();
        return ops<tx_localizer_interface_1>(localizer).load_string(localizer.object, 10, visitor);
      }
      if (visitor.table != nullptr) {
        ops<tx_string_visitor_interface_0>(visitor).visit(
            visitor.object, tx_res_get_lng() == 50000 ? u"Fake utility" : u"Поддельная утилита");
      }
      return true;
    },
    [](void*, tx_custom_pointer) { return false; },
    [](void*, uint64_t) {},
    [](void*) { return true; },
    [](void*) {},
    [](void*) {},
    [](void*, tx_custom_pointer) {},
};

// 0: the utility service, 1: the modal dialog service.
tx::test::plugin_service g_services[2]{
    {.command_id = u"tx_fake_utility", .command = {&kCommandTable, &g_client}}, {}};

// Hands `service` to the visitor the sink's root answers for `name`, if it answers one. Every
// service visitor has the same layout: root, then visit(self, service).
void publish(tx_custom_pointer sink, const char* name, tx_custom_pointer service) {
  const tx_custom_pointer receiver = ask(sink, name);
  if (receiver.table != nullptr) {
    ops<tx_utility_service_visitor_interface_2>(receiver).visit(receiver.object, service);
  }
}

const tx_service_factory_table kFactoryTable{
    &no_interfaces, [](void*, tx_custom_pointer registry, tx_custom_pointer sink) {
      g_localizers.pairs.clear();
      tx::test::named_sink found;
      if (registry.table != nullptr) {
        ops<tx_service_registry_interface_0>(registry).visit_service(
            registry.object, TX_LOCALIZER_NAMESPACE_KEY,
            found.as<tx_service_registry_visitor_interface_0>());
      }
      for (const auto& entry : found.entries) {
        const tx_custom_pointer service = ask(entry.second, TX_LOCALIZER_SERVICE_INTERFACE_1);
        if (service.table == nullptr) continue;
        ops<tx_localizer_service_interface_1>(service).visit_localizer(
            service.object, g_client.pointer(),
            g_localizers.as<tx_localizer_visitor_interface_1>());
      }
      publish(sink, TX_UTILITY_SERVICE_VISITOR_INTERFACE_2, g_services[0].utility_pair());
      publish(sink, TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102, g_services[1].dialog_pair());
    }};

const tx_bundle_table kBundleTable{
    &no_interfaces,
    [](void*, tx_custom_pointer visitor) {
      if (visitor.table == nullptr || visitor.object == nullptr) return;
      ops<tx_service_visitor_interface_0>(visitor).visit(visitor.object, TX_UTILITY_NAMESPACE_KEY,
                                                         {&kFactoryTable, &g_client});
    },
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
};

size_t g_unloading_calls = 0;

}  // namespace

tx_custom_pointer tx_bundle_interface_to_custom_pointer(void* context) {
  return {&kBundleTable, context};
}

// Counts its calls so that the tests see the host call it on unloading.
void scary_vcl_bug_crashes_everything_on_unloading(void) { ++g_unloading_calls; }

// Probes for the tests; `service` 0 is the utility service, 1 the modal dialog service.
TX_PLUGIN_EXPORT size_t tx_fake_plugin_referrers(int service) {
  return g_services[service & 1].referrers.size();
}

TX_PLUGIN_EXPORT size_t tx_fake_plugin_detaches(int service) {
  return g_services[service & 1].detaches;
}

TX_PLUGIN_EXPORT size_t tx_fake_plugin_unloading_calls(void) { return g_unloading_calls; }

// Plays the plug-in destroying its services: every referrer is told, the lists are emptied.
TX_PLUGIN_EXPORT void tx_fake_plugin_release_services(void) {
  for (tx::test::plugin_service& service : g_services) service.destroy();
}
