#include "tx_host/services/service_registry.h"

#include <gtest/gtest.h>

#include "plugin_doubles.h"
#include "tx/services.h"
#include "tx/visitors.h"
#include "tx_host/services/string_collector.h"

namespace tx::host {
namespace {

// The registry's answers: (key, service).
struct registry_visitor : test::named_sink {
  tx_custom_pointer pair() { return as<tx_service_registry_visitor_interface_0>(); }
};

// Asks the registry through its table, as a plug-in does.
void ask(service_registry& registry, const char16_t* key, tx_custom_pointer visitor) {
  call(registry.pair(), &tx_service_registry_interface_0::visit_service, key, visitor);
}

TEST(ServiceRegistry, AnswersItsInterfaceAndTheLocalizerKeyOnlyWhileSwitchedOn) {
  service_registry registry;
  EXPECT_TRUE(same(query(registry.pair(), TX_SERVICE_REGISTRY_INTERFACE_0), registry.pair()));
  EXPECT_FALSE(present(query(registry.pair(), "tx_service_registry_interface_1")));
  EXPECT_FALSE(present(query(registry.pair(), TX_LOCALIZER_SERVICE_INTERFACE_1)));

  registry_visitor visitor;
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, visitor.pair());
  EXPECT_TRUE(visitor.entries.empty()) << "off at construction";

  registry.set_localizer_enabled(true);
  // A null visitor or key visits nothing; a null key is not even recorded.
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, {});
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, {visitor.pair().table, nullptr});
  ask(registry, nullptr, visitor.pair());
  EXPECT_TRUE(visitor.entries.empty());
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, visitor.pair());
  ASSERT_EQ(visitor.entries.size(), 1u);
  EXPECT_EQ(visitor.entries[0].first, TX_LOCALIZER_NAMESPACE_KEY);
  const tx_custom_pointer service = visitor.entries[0].second;
  EXPECT_TRUE(present(query(service, TX_LOCALIZER_SERVICE_INTERFACE_1)));

  registry.set_localizer_enabled(false);
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, visitor.pair());
  EXPECT_EQ(visitor.entries.size(), 1u);
  EXPECT_EQ(registry.requested_keys(),
            (std::vector<std::u16string>(5, TX_LOCALIZER_NAMESPACE_KEY)));

  // The service handed out before still hands the localizer to each client that asks, with a
  // visitor to take it, and records every client's module (empty for none).
  test::localizer_client client{{}, u"txk_project_rename"};
  test::pair_sink localizers;
  const tx_custom_pointer to = localizers.as<tx_localizer_visitor_interface_1>();
  for (const auto& [c, v] : {std::pair{client.pointer(), to}, std::pair{tx_custom_pointer{}, to},
                             std::pair{client.pointer(), tx_custom_pointer{}}}) {
    call(service, &tx_localizer_service_interface_1::visit_localizer, c, v);
  }
  ASSERT_EQ(localizers.pairs.size(), 2u);
  EXPECT_TRUE(same(localizers.pairs[0], registry.localizer().pair()));
  EXPECT_TRUE(same(localizers.pairs[1], registry.localizer().pair()));
  EXPECT_EQ(registry.localizer_entry().clients(),
            (std::vector<std::u16string>{u"txk_project_rename", u"", u"txk_project_rename"}));
}

// A plug-in's registry visitor that also takes the localizer service through its own visitor.
struct typed_registry_visitor : registry_visitor {
  test::pair_sink services;
  static int query(void* s, const char* name, const void** table, void** object) {
    auto& self = *static_cast<typed_registry_visitor*>(s);
    tx_custom_pointer found{};
    if (std::string_view(name) == TX_LOCALIZER_SERVICE_VISITOR_INTERFACE_1) {
      found = self.services.as<tx_localizer_service_visitor_interface_1>();
    }
    *table = found.table;
    *object = found.object;
    return found.table != nullptr ? 0 : 1;
  }
  static tx_custom_pointer root(void* s) {
    static constexpr tx_root_interface table{&query};
    return {&table, s};
  }
  tx_custom_pointer pair() {
    static constexpr tx_service_registry_visitor_interface_0 table{
        &root, [](void* s, const char16_t* key, tx_custom_pointer service) {
          static_cast<typed_registry_visitor*>(s)->entries.emplace_back(key, service);
        }};
    return {&table, this};
  }
};

TEST(ServiceRegistry, TheLocalizerServiceGoesToAVisitorMadeForIt) {
  service_registry registry;
  registry.set_localizer_enabled(true);
  test::plugin_service other;
  registry.set_service(u"tx.test/a", other.utility_pair());
  typed_registry_visitor visitor;
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, visitor.pair());
  ask(registry, u"tx.test/a", visitor.pair());
  ASSERT_EQ(visitor.services.pairs.size(), 1u);
  EXPECT_TRUE(present(query(visitor.services.pairs[0], TX_LOCALIZER_SERVICE_INTERFACE_1)));
  // Any other service still comes with its key through the registry visitor.
  ASSERT_EQ(visitor.entries.size(), 1u);
  EXPECT_EQ(visitor.entries[0].first, u"tx.test/a");
}

TEST(ServiceRegistry, FiledServicesAreFoundByExactKey) {
  service_registry registry;
  test::plugin_service service;
  registry.set_service(u"tx.test/a", service.utility_pair());
  registry_visitor visitor;

  ask(registry, u"tx.test/a", visitor.pair());
  ask(registry, u"tx.test/A", visitor.pair());
  ask(registry, u"tx.test/", visitor.pair());
  ask(registry, TX_UTILITY_NAMESPACE_KEY, visitor.pair());
  ASSERT_EQ(visitor.entries.size(), 1u);
  EXPECT_EQ(visitor.entries[0].first, u"tx.test/a");
  EXPECT_TRUE(same(visitor.entries[0].second, service.utility_pair()));

  registry.set_service(u"tx.test/a", {});
  ask(registry, u"tx.test/a", visitor.pair());
  EXPECT_EQ(visitor.entries.size(), 1u) << "a null pair removes the key";
}

TEST(RecordingLocalizer, AnswersPositiveStringReferencesOnlyAndRecordsEveryQuestion) {
  using kind = localizer_request::kind;
  struct row {
    kind what;
    std::int32_t reference;
    std::u16string text;  // empty: not found
  };
  const row rows[] = {
      {kind::string, 10, u"localized:10"},
      {kind::string, 50010, u"localized:50010"},
      {kind::string, 1, u"localized:1"},
      {kind::string, 0, u""},
      {kind::string, -3, u""},
      {kind::text_data, 5, u""},
      {kind::bitmap, 100, u""},
  };
  recording_localizer localizer;
  const tx_custom_pointer l = localizer.pair();
  std::vector<localizer_request> asked;
  for (const row& r : rows) {
    string_collector text;
    const bool found =
        r.what == kind::string
            ? call(l, &tx_localizer_interface_1::load_string, r.reference, text.pair())
        : r.what == kind::text_data
            ? call(l, &tx_localizer_interface_1::load_text_data, r.reference, text.pair(),
                   std::uint32_t{1251})
            : call(l, &tx_localizer_interface_1::load_bitmap, r.reference, tx_custom_pointer{});
    EXPECT_EQ(found, !r.text.empty()) << r.reference;
    EXPECT_EQ(text.text(), r.text) << r.reference;
    EXPECT_EQ(text.visits(), found ? 1u : 0u) << r.reference;
    asked.push_back({r.what, r.reference});
  }
  EXPECT_EQ(localizer.requests(), asked);
  EXPECT_TRUE(call(l, &tx_localizer_interface_1::load_string, 7, tx_custom_pointer{}))
      << "found, even with nobody to hand it to";
  localizer.clear_requests();
  EXPECT_TRUE(localizer.requests().empty());
}

}  // namespace
}  // namespace tx::host
