// The host's services as the plug-in's tests need them: where a bundle and its factories
// publish, a registry that may offer a localizer, and a localizer that records what it is asked.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host_doubles.h"
#include "tx/bundle.h"
#include "tx/modal_dialog.h"
#include "tx/services.h"
#include "tx/utility.h"

namespace tx::test {

// Answers every string and text it is asked for with "from the localizer" while `answer` is
// set, and records each question.
struct fake_localizer : recorder<fake_localizer> {
  enum class kind { text_data, string, bitmap };
  struct request {
    kind what;
    std::int32_t reference;
    std::uint32_t code_page;
  };
  std::vector<request> requests;
  bool answer = true;

  bool respond(kind what, std::int32_t reference, tx_custom_pointer visitor, std::uint32_t page) {
    requests.push_back({what, reference, page});
    if (answer && what != kind::bitmap && visitor.table != nullptr && visitor.object != nullptr) {
      ops<tx_string_visitor_interface_0>(visitor).visit(visitor.object, u"from the localizer");
    }
    return answer;
  }
  static bool load_text_data(void* s, std::int32_t reference, tx_custom_pointer visitor,
                             std::uint32_t code_page) {
    return self(s).respond(kind::text_data, reference, visitor, code_page);
  }
  static bool load_string(void* s, std::int32_t reference, tx_custom_pointer visitor) {
    return self(s).respond(kind::string, reference, visitor, 0);
  }
  static bool load_bitmap(void* s, std::int32_t reference, tx_custom_pointer) {
    return self(s).respond(kind::bitmap, reference, {}, 0);
  }
  static constexpr tx_localizer_interface_1 table{&no_interfaces, &load_text_data, &load_string,
                                                  &load_bitmap};
};

// Answers `name` with `found` through the outs, as a root's query does.
inline int answer(tx_custom_pointer found, const void** table, void** object) {
  *table = found.table;
  *object = found.object;
  return found.table != nullptr ? 0 : 1;
}

// The host's receiver of what a bundle and its factories publish: its root answers the service
// visitor and, while offered, the utility and modal dialog service visitors.
struct publish_sink : recorder<publish_sink> {
  bool offers_utilities = true;
  bool offers_dialogs = true;
  named_sink factories;
  pair_sink utility_services;
  pair_sink dialog_services;

  static int query(void* s, const char* name, const void** table, void** object) {
    const std::string_view n = name;
    publish_sink& sink = self(s);
    tx_custom_pointer found{};
    if (n == TX_SERVICE_VISITOR_INTERFACE_0) found = sink.pointer();
    if (sink.offers_utilities && n == TX_UTILITY_SERVICE_VISITOR_INTERFACE_2)
      found = sink.utility_services.as<tx_utility_service_visitor_interface_2>();
    if (sink.offers_dialogs && n == TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102)
      found = sink.dialog_services.as<tx_modal_dialog_service_visitor_interface_102>();
    return answer(found, table, object);
  }
  static constexpr tx_root_interface root_table{&query};
  static constexpr tx_service_visitor_interface_0 table{
      [](void* s) {
        return tx_custom_pointer{&root_table, s};
      },
      [](void* s, const char16_t* key, tx_custom_pointer factory) {
        self(s).factories.entries.emplace_back(key, factory);
      }};

  // Hands this sink to every factory it has collected, with `registry`, as a host does after
  // visiting the bundle.
  void visit_factories(tx_custom_pointer registry) {
    const auto collected = factories.entries;
    for (const auto& [key, factory] : collected) {
      ops<tx_service_factory_table>(factory).visit(factory.object, registry, pointer());
    }
  }
};

// A host service registry that files `localizer` under the localizer key while `has_localizer`;
// with `typed_route` it hands the localizer service to a visitor that answers
// tx_localizer_service_visitor_interface_1 through that interface, as the reference host does.
struct registry : recorder<registry> {
  bool has_localizer = true;
  bool typed_route = false;
  int typed_handovers = 0;
  fake_localizer localizer;

  static int query(void* s, const char* name, const void** table, void** object) {
    const std::string_view n = name;
    tx_custom_pointer found{};
    if (n == TX_SERVICE_REGISTRY_INTERFACE_0) found = self(s).pointer();
    if (n == TX_LOCALIZER_SERVICE_INTERFACE_1) found = {&service_table, s};
    return answer(found, table, object);
  }
  static tx_custom_pointer root(void* s) { return {&root_table, s}; }
  static constexpr tx_root_interface root_table{&query};
  static constexpr tx_localizer_service_interface_1 service_table{
      &root, [](void* s, tx_custom_pointer, tx_custom_pointer visitor) {
        ops<tx_localizer_visitor_interface_1>(visitor).visit(visitor.object,
                                                             self(s).localizer.pointer());
      }};
  static constexpr tx_service_registry_interface_0 table{
      &root, [](void* s, const char16_t* key, tx_custom_pointer visitor) {
        if (!self(s).has_localizer || std::u16string_view(key) != TX_LOCALIZER_NAMESPACE_KEY)
          return;
        const tx_custom_pointer typed = ask(visitor, TX_LOCALIZER_SERVICE_VISITOR_INTERFACE_1);
        if (self(s).typed_route && typed.table != nullptr) {
          ++self(s).typed_handovers;
          ops<tx_localizer_service_visitor_interface_1>(typed).visit(typed.object,
                                                                     {&service_table, s});
          return;
        }
        ops<tx_service_registry_visitor_interface_0>(visitor).visit(visitor.object, key,
                                                                    {&service_table, s});
      }};
};

}  // namespace tx::test
