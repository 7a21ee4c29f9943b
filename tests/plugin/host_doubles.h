// Host-side test doubles: the visitors, referrers and services a host hands to the plug-in,
// each recording what the plug-in did with it.
#pragma once

#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tx/bundle.h"
#include "tx/modal_dialog.h"
#include "tx/referent.h"
#include "tx/services.h"
#include "tx/utility.h"
#include "tx/visitors.h"

namespace tx::test {

inline bool is_present(tx_custom_pointer cp) { return cp.table != nullptr && cp.object != nullptr; }

// Asks any pair for an interface through its root.
inline tx_custom_pointer ask(tx_custom_pointer any, const char* name) {
  tx_custom_pointer found{reinterpret_cast<const void*>(1), reinterpret_cast<void*>(1)};
  if (!is_present(any)) return {};
  const tx_custom_pointer root = (*static_cast<const tx_root_fn*>(any.table))(any.object);
  static_cast<const tx_root_interface*>(root.table)
      ->query(root.object, name, &found.table, &found.object);
  return found;
}

template <class Table>
const Table& table(tx_custom_pointer cp) {
  return *static_cast<const Table*>(cp.table);
}

// Collects every text handed to it.
struct text_sink {
  std::vector<std::u16string> texts;
  tx_custom_pointer pointer() {
    static constexpr tx_string_visitor_interface_0 t{
        nullptr, [](void* self, const char16_t* text) {
          static_cast<text_sink*>(self)->texts.emplace_back(text);
        }};
    return {&t, this};
  }
};

// A host referrer: logs every question and notice as "<name>:holds" / "<name>:released".
struct referrer {
  std::string name;
  bool holding = true;
  std::vector<std::string>* log = nullptr;
  std::function<void()> on_holds;  // runs inside the question, e.g. to detach another referrer
  tx_custom_pointer last_released{};

  tx_custom_pointer pointer() {
    static constexpr tx_referrer_interface_1 t{nullptr,
                                               [](void* self, tx_custom_pointer referent) {
                                                 auto& r = *static_cast<referrer*>(self);
                                                 r.last_released = referent;
                                                 if (r.log) r.log->push_back(r.name + ":released");
                                               },
                                               [](void* self, tx_custom_pointer) -> bool {
                                                 auto& r = *static_cast<referrer*>(self);
                                                 if (r.log) r.log->push_back(r.name + ":holds");
                                                 if (r.on_holds) r.on_holds();
                                                 return r.holding;
                                               }};
    return {&t, this};
  }
};

// The host's receiver of everything a bundle and its factories publish. Its root answers the
// three visitor interfaces that are switched on.
struct publish_sink {
  bool offers_utilities = true;
  bool offers_dialogs = true;
  std::vector<std::pair<std::u16string, tx_custom_pointer>> factories;
  std::vector<tx_custom_pointer> utility_services;
  std::vector<tx_custom_pointer> dialog_services;

  static int query(void* self, const char* name, const void** out_table, void** out_object) {
    *out_table = nullptr;
    *out_object = nullptr;
    auto& sink = *static_cast<publish_sink*>(self);
    if (std::strcmp(name, TX_SERVICE_VISITOR_INTERFACE_0) == 0) {
      *out_table = &factory_table;
    } else if (sink.offers_utilities &&
               std::strcmp(name, TX_UTILITY_SERVICE_VISITOR_INTERFACE_2) == 0) {
      *out_table = &utility_table;
    } else if (sink.offers_dialogs &&
               std::strcmp(name, TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102) == 0) {
      *out_table = &dialog_table;
    } else {
      return 1;
    }
    *out_object = self;
    return 0;
  }
  static tx_custom_pointer root(void* self) { return {&root_table, self}; }

  static constexpr tx_root_interface root_table{&publish_sink::query};
  static constexpr tx_service_visitor_interface_0 factory_table{
      &publish_sink::root, [](void* self, const char16_t* key, tx_custom_pointer factory) {
        static_cast<publish_sink*>(self)->factories.emplace_back(key, factory);
      }};
  static constexpr tx_utility_service_visitor_interface_2 utility_table{
      &publish_sink::root, [](void* self, tx_custom_pointer service) {
        static_cast<publish_sink*>(self)->utility_services.push_back(service);
      }};
  static constexpr tx_modal_dialog_service_visitor_interface_102 dialog_table{
      &publish_sink::root, [](void* self, tx_custom_pointer service) {
        static_cast<publish_sink*>(self)->dialog_services.push_back(service);
      }};

  tx_custom_pointer pointer() { return {&factory_table, this}; }
  // Hands this sink to every factory it has collected, with `registry`.
  void visit_factories(tx_custom_pointer registry) {
    const auto collected = factories;
    for (const auto& [key, factory] : collected) {
      table<tx_service_factory_table>(factory).visit(factory.object, registry, pointer());
    }
  }
};

// Collects (identifier, pair) from a utility service or a modal dialog service.
struct named_sink {
  std::vector<std::pair<std::u16string, tx_custom_pointer>> entries;
  static void add(void* self, const char16_t* id, tx_custom_pointer cp) {
    static_cast<named_sink*>(self)->entries.emplace_back(id, cp);
  }
  tx_custom_pointer utilities() {
    static constexpr tx_utility_visitor_interface_2 t{nullptr, &named_sink::add};
    return {&t, this};
  }
  tx_custom_pointer dialogs() {
    static constexpr tx_modal_dialog_visitor_interface_101 t{nullptr, &named_sink::add};
    return {&t, this};
  }
};

// A host service registry with an optional localizer that answers every positive string
// reference with "localized:<id>".
struct registry {
  bool has_localizer = true;
  std::vector<int> asked;

  static tx_custom_pointer root(void* self) { return {&root_table, self}; }
  static int query(void* self, const char* name, const void** out_table, void** out_object) {
    *out_table = nullptr;
    *out_object = nullptr;
    if (std::strcmp(name, TX_SERVICE_REGISTRY_INTERFACE_0) == 0) {
      *out_table = &registry_table;
    } else if (std::strcmp(name, TX_LOCALIZER_SERVICE_INTERFACE_1) == 0) {
      *out_table = &service_table;
    } else {
      return 1;
    }
    *out_object = self;
    return 0;
  }
  static constexpr tx_root_interface root_table{&registry::query};
  static constexpr tx_localizer_interface_1 localizer_table{
      &registry::root, [](void*, int32_t, tx_custom_pointer, uint32_t) { return false; },
      [](void* self, int32_t reference, tx_custom_pointer visitor) {
        static_cast<registry*>(self)->asked.push_back(reference);
        std::u16string text = u"localized:";
        for (char c : std::to_string(reference)) text += static_cast<char16_t>(c);
        if (is_present(visitor))
          table<tx_string_visitor_interface_0>(visitor).visit(visitor.object, text.c_str());
        return true;
      },
      [](void*, int32_t, tx_custom_pointer) { return false; }};

  static constexpr tx_localizer_service_interface_1 service_table{
      &registry::root, [](void* self, tx_custom_pointer, tx_custom_pointer visitor) {
        table<tx_localizer_service_visitor_interface_1>(visitor).visit(visitor.object,
                                                                       {&localizer_table, self});
      }};
  static constexpr tx_service_registry_interface_0 registry_table{
      &registry::root, [](void* self, const char16_t* key, tx_custom_pointer visitor) {
        auto& r = *static_cast<registry*>(self);
        if (!r.has_localizer || std::u16string(key) != TX_LOCALIZER_NAMESPACE_KEY) return;
        table<tx_service_registry_visitor_interface_0>(visitor).visit(visitor.object, key,
                                                                      {&service_table, self});
      }};
  tx_custom_pointer pointer() { return {&registry_table, this}; }
};

}  // namespace tx::test
