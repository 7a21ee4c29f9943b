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

TEST(ServiceRegistry, AnswersItsInterfaceOnly) {
  service_registry registry;
  EXPECT_TRUE(same(query(registry.pair(), TX_SERVICE_REGISTRY_INTERFACE_0), registry.pair()));
  EXPECT_FALSE(present(query(registry.pair(), "tx_service_registry_interface_1")));
  EXPECT_FALSE(present(query(registry.pair(), TX_LOCALIZER_SERVICE_INTERFACE_1)));
}

TEST(ServiceRegistry, LocalizerKeyAnswersOnlyWhileSwitchedOn) {
  service_registry registry;
  registry_visitor visitor;
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, visitor.pair());
  EXPECT_TRUE(visitor.entries.empty()) << "off at construction";

  registry.set_localizer_enabled(true);
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, visitor.pair());
  ASSERT_EQ(visitor.entries.size(), 1u);
  EXPECT_EQ(visitor.entries[0].first, TX_LOCALIZER_NAMESPACE_KEY);
  EXPECT_TRUE(present(query(visitor.entries[0].second, TX_LOCALIZER_SERVICE_INTERFACE_1)));

  registry.set_localizer_enabled(false);
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, visitor.pair());
  EXPECT_EQ(visitor.entries.size(), 1u);
  EXPECT_EQ(registry.requested_keys(),
            (std::vector<std::u16string>(3, TX_LOCALIZER_NAMESPACE_KEY)));
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

TEST(ServiceRegistry, NullVisitorOrKeyVisitsNothing) {
  service_registry registry;
  registry.set_localizer_enabled(true);
  registry_visitor visitor;
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, {});
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, {visitor.pair().table, nullptr});
  ask(registry, nullptr, visitor.pair());
  EXPECT_TRUE(visitor.entries.empty());
}

TEST(LocalizerService, HandsTheLocalizerAndRecordsTheClientModule) {
  service_registry registry;
  registry.set_localizer_enabled(true);
  registry_visitor found;
  ask(registry, TX_LOCALIZER_NAMESPACE_KEY, found.pair());
  ASSERT_EQ(found.entries.size(), 1u);
  const tx_custom_pointer service = found.entries[0].second;
  test::localizer_client client{{}, u"txk_project_rename"};
  test::pair_sink visitor;
  const tx_custom_pointer pair = visitor.as<tx_localizer_service_visitor_interface_1>();
  for (const auto& [c, v] :
       {std::pair{client.pointer(), pair}, std::pair{tx_custom_pointer{}, pair},
        std::pair{client.pointer(), tx_custom_pointer{}}}) {
    call(service, &tx_localizer_service_interface_1::visit_localizer, c, v);
  }
  ASSERT_EQ(visitor.pairs.size(), 2u);
  EXPECT_TRUE(same(visitor.pairs[0], registry.localizer().pair()));
  EXPECT_TRUE(same(visitor.pairs[1], registry.localizer().pair()));
  EXPECT_EQ(registry.localizer_entry().clients(),
            (std::vector<std::u16string>{u"txk_project_rename", u"", u"txk_project_rename"}));
}

TEST(RecordingLocalizer, AnswersPositiveStringReferencesRecognisably) {
  struct row {
    std::int32_t reference;
    bool found;
    std::u16string text;
  };
  const row rows[] = {
      {10, true, u"localized:10"},
      {50010, true, u"localized:50010"},
      {1, true, u"localized:1"},
      {0, false, u""},
      {-3, false, u""},
  };
  recording_localizer localizer;
  for (const row& r : rows) {
    string_collector text;
    EXPECT_EQ(
        call(localizer.pair(), &tx_localizer_interface_1::load_string, r.reference, text.pair()),
        r.found)
        << r.reference;
    EXPECT_EQ(text.text(), r.text) << r.reference;
    EXPECT_EQ(text.visits(), r.found ? 1u : 0u) << r.reference;
  }
  EXPECT_TRUE(
      call(localizer.pair(), &tx_localizer_interface_1::load_string, 7, tx_custom_pointer{}))
      << "found, even with nobody to hand it to";
}

TEST(RecordingLocalizer, HasNoTextDataNorBitmapsAndRecordsEveryQuestion) {
  recording_localizer localizer;
  string_collector text;
  EXPECT_FALSE(call(localizer.pair(), &tx_localizer_interface_1::load_text_data, 5, text.pair(),
                    std::uint32_t{1251}));
  EXPECT_FALSE(
      call(localizer.pair(), &tx_localizer_interface_1::load_bitmap, 100, tx_custom_pointer{}));
  call(localizer.pair(), &tx_localizer_interface_1::load_string, -1, text.pair());
  EXPECT_EQ(text.visits(), 0u);

  using kind = localizer_request::kind;
  EXPECT_EQ(localizer.requests(),
            (std::vector<localizer_request>{
                {kind::text_data, 5}, {kind::bitmap, 100}, {kind::string, -1}}));
  localizer.clear_requests();
  EXPECT_TRUE(localizer.requests().empty());
}

}  // namespace
}  // namespace tx::host
