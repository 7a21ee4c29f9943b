// A minimal plug-in for the reference host's loader tests. One factory, filed under the utility
// key, asks the host's registry for the localizer, then publishes a utility service with one
// command ("tx_fake_utility") and a modal dialog service with no dialogs. Both services are
// referents the host attaches to; the plug-in keeps its own hold on them, so they outlive the
// host's. The command's caption comes from the localizer when the host gave one, otherwise
// from the language offset. Probes exported for the tests tell what the host did.
#define TX_BUILDING_PLUGIN
#include <cstring>
#include <vector>

#include "tx/bundle.h"
#include "tx/host/txk_basic.h"
#include "tx/modal_dialog.h"
#include "tx/referent.h"
#include "tx/services.h"
#include "tx/utility.h"
#include "tx/visitors.h"

namespace {

bool present(tx_custom_pointer cp) { return cp.table != nullptr && cp.object != nullptr; }

// Every object here answers one or two interface names through the same root table.
struct fake_object {
  const char* names[2];
  const void* tables[2];
};

int fake_query(void* self, const char* name, const void** table, void** object) {
  *table = nullptr;
  *object = nullptr;
  const auto* fake = static_cast<const fake_object*>(self);
  int comparison = 1;
  for (int i = 0; i < 2 && fake->names[i] != nullptr; ++i) {
    comparison = std::strcmp(name, fake->names[i]);
    if (comparison == 0) {
      *table = fake->tables[i];
      *object = self;
      break;
    }
  }
  return comparison;
}

constexpr tx_root_interface kRootTable{&fake_query};
tx_custom_pointer fake_root(void* self) { return {&kRootTable, self}; }

// Asks `any` for interface `name` through its root.
tx_custom_pointer query(tx_custom_pointer any, const char* name) {
  tx_custom_pointer found{};
  if (!present(any)) return found;
  const tx_custom_pointer root = (*static_cast<const tx_root_fn*>(any.table))(any.object);
  if (!present(root)) return found;
  static_cast<const tx_root_interface*>(root.table)
      ->query(root.object, name, &found.table, &found.object);
  return found;
}

tx_custom_pointer g_localizer{};

// A published service: its principal interface and the referent's list of referrers.
struct fake_service : fake_object {
  std::vector<tx_custom_pointer> referrers;
  size_t detaches = 0;
};

// The object half of every pair is the fake_object part, which the root table reads.
fake_service& service_of(void* self) {
  return static_cast<fake_service&>(*static_cast<fake_object*>(self));
}
void* object_half(fake_service& service) { return static_cast<fake_object*>(&service); }

const tx_referent_interface_1 kReferentTable{
    &fake_root,
    [](void* self, tx_custom_pointer referrer) -> size_t {
      fake_service& service = service_of(self);
      service.referrers.push_back(referrer);
      return service.referrers.size();
    },
    [](void* self, tx_custom_pointer referrer) {
      fake_service& service = service_of(self);
      ++service.detaches;
      for (auto it = service.referrers.begin(); it != service.referrers.end(); ++it) {
        if (it->table == referrer.table && it->object == referrer.object) {
          service.referrers.erase(it);
          break;
        }
      }
      // The plug-in's own hold keeps the service alive: nothing is destroyed.
    },
    [](void* self) -> tx_custom_pointer {
      return {service_of(self).tables[0], self};
    },
    [](void* self, size_t index) -> tx_custom_pointer {
      const auto& referrers = service_of(self).referrers;
      return index < referrers.size() ? referrers[index] : tx_custom_pointer{};
    },
};

fake_object g_command{{TX_UTILITY_INTERFACE_4, nullptr}, {nullptr, nullptr}};

const tx_utility_interface_4 kCommandTable{
    &fake_root,
    [](void*, tx_custom_pointer visitor) -> bool {
      if (present(g_localizer)) {
        return static_cast<const tx_localizer_interface_1*>(g_localizer.table)
            ->load_string(g_localizer.object, 10, visitor);
      }
      const char16_t* caption = tx_res_get_lng() == 50000 ? u"Fake utility" : u"Поддельная утилита";
      if (present(visitor)) {
        static_cast<const tx_string_visitor_interface_0*>(visitor.table)
            ->visit(visitor.object, caption);
      }
      return true;
    },
    [](void*, tx_custom_pointer) -> bool { return false; },
    [](void*, uint64_t) {},
    [](void*) -> bool { return true; },
    [](void*) {},
    [](void*) {},
    [](void*, tx_custom_pointer) {},
};

const tx_utility_service_interface_2 kUtilityServiceTable{
    &fake_root,
    [](void* self) -> tx_custom_pointer {
      return {&kReferentTable, self};
    },
    [](void*, tx_custom_pointer visitor) {
      if (!present(visitor)) return;
      static_cast<const tx_utility_visitor_interface_2*>(visitor.table)
          ->visit(visitor.object, u"tx_fake_utility", {&kCommandTable, &g_command});
    },
};

const tx_modal_dialog_service_interface_102 kDialogServiceTable{
    &fake_root,
    [](void* self) -> tx_custom_pointer {
      return {&kReferentTable, self};
    },
    [](void*, tx_custom_pointer) {},
};

fake_service g_services[2] = {
    {{{TX_UTILITY_SERVICE_INTERFACE_2, TX_REFERENT_INTERFACE_1},
      {&kUtilityServiceTable, &kReferentTable}},
     {},
     0},
    {{{TX_MODAL_DIALOG_SERVICE_INTERFACE_102, TX_REFERENT_INTERFACE_1},
      {&kDialogServiceTable, &kReferentTable}},
     {},
     0},
};

fake_object g_plain{{nullptr, nullptr}, {nullptr, nullptr}};

const tx_localizer_client_interface_0 kClientTable{
    &fake_root, [](void*) -> const char16_t* { return u"tx_fake_plugin"; }};

const tx_localizer_service_visitor_interface_1 kLocalizerVisitorTable{
    &fake_root, [](void*, tx_custom_pointer localizer) { g_localizer = localizer; }};

const tx_service_registry_visitor_interface_0 kRegistryVisitorTable{
    &fake_root, [](void*, const char16_t*, tx_custom_pointer service) {
      const tx_custom_pointer localizer_service = query(service, TX_LOCALIZER_SERVICE_INTERFACE_1);
      if (!present(localizer_service)) return;
      static_cast<const tx_localizer_service_interface_1*>(localizer_service.table)
          ->visit_localizer(localizer_service.object, {&kClientTable, &g_plain},
                            {&kLocalizerVisitorTable, &g_plain});
    }};

void publish(tx_custom_pointer visitor, const char* name, tx_custom_pointer service) {
  const tx_custom_pointer receiver = query(visitor, name);
  // Every service visitor has the same layout: root, then visit(self, service).
  if (present(receiver)) {
    static_cast<const tx_utility_service_visitor_interface_2*>(receiver.table)
        ->visit(receiver.object, service);
  }
}

const tx_service_factory_table kFactoryTable{
    &fake_root, [](void*, tx_custom_pointer registry, tx_custom_pointer visitor) {
      g_localizer = {};
      if (present(registry)) {
        static_cast<const tx_service_registry_interface_0*>(registry.table)
            ->visit_service(registry.object, TX_LOCALIZER_NAMESPACE_KEY,
                            {&kRegistryVisitorTable, &g_plain});
      }
      publish(visitor, TX_UTILITY_SERVICE_VISITOR_INTERFACE_2,
              {&kUtilityServiceTable, object_half(g_services[0])});
      publish(visitor, TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102,
              {&kDialogServiceTable, object_half(g_services[1])});
    }};

const tx_bundle_table kBundleTable{
    [](void*) -> tx_custom_pointer {
      return {&kRootTable, &g_plain};
    },
    [](void*, tx_custom_pointer visitor) {
      if (!present(visitor)) return;
      static_cast<const tx_service_visitor_interface_0*>(visitor.table)
          ->visit(visitor.object, TX_UTILITY_NAMESPACE_KEY, {&kFactoryTable, &g_plain});
    },
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
    &scary_vcl_bug_crashes_everything_on_unloading,
};

}  // namespace

tx_custom_pointer tx_bundle_interface_to_custom_pointer(void* context) {
  return {&kBundleTable, context};
}

// Counts its calls so that the tests see the host call it on unloading.
size_t g_unloading_calls = 0;
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
  for (fake_service& service : g_services) {
    const std::vector<tx_custom_pointer> told = std::move(service.referrers);
    service.referrers.clear();
    for (const tx_custom_pointer& referrer : told) {
      static_cast<const tx_referrer_interface_1*>(referrer.table)
          ->released(referrer.object, {&kReferentTable, object_half(service)});
    }
  }
}
