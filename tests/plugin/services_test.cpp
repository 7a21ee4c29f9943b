// The bundle, the factory registry and the services the factories publish, in-process.
#define TX_BUILDING_PLUGIN  // declares the plug-in's exports, which this program links
#include <gtest/gtest.h>

#include "host_services.h"
#include "plugin/localizer.h"
#include "plugin/service_factory.h"
#include "resources/loader.h"

namespace tx {
namespace {

using test::ops;

const tx_bundle_table& bundle() {
  return ops<tx_bundle_table>(tx_bundle_interface_to_custom_pointer(nullptr));
}

std::vector<std::u16string> visited_keys() {
  test::publish_sink sink;
  bundle().visit_services(nullptr, sink.pointer());
  std::vector<std::u16string> keys;
  for (const auto& entry : sink.factories.entries) keys.push_back(entry.first);
  return keys;
}

TEST(Bundle, EntryKeepsTheHostsContextAndAnswersNoInterface) {
  int context = 0;
  const tx_custom_pointer b = tx_bundle_interface_to_custom_pointer(&context);
  EXPECT_EQ(b.object, &context);
  for (const char* name : {TX_UTILITY_INTERFACE_4, TX_REFERENT_INTERFACE_1,
                           TX_SERVICE_VISITOR_INTERFACE_0, "", "tx_bundle_interface_0"}) {
    EXPECT_TRUE(same(test::ask(b, name), {})) << name;
  }
}

TEST(Bundle, FactoriesAreVisitedInRegistrationOrderAndReservedSlotsDoNothing) {
  const std::vector<std::u16string> keys{u"", TX_UTILITY_NAMESPACE_KEY, u"", u""};
  EXPECT_EQ(visited_keys(), keys);
  for (auto reserved :
       {bundle().reserved_2, bundle().reserved_3, bundle().reserved_4, bundle().reserved_5}) {
    EXPECT_EQ(reserved, &scary_vcl_bug_crashes_everything_on_unloading);
    reserved();
  }
  EXPECT_EQ(visited_keys(), keys);
  // A visitor with a null half is not called.
  test::publish_sink sink;
  bundle().visit_services(nullptr, {sink.pointer().table, nullptr});
  bundle().visit_services(nullptr, {nullptr, &sink});
  EXPECT_TRUE(sink.factories.entries.empty());
}

class extra_factory final : public custom_service_factory_impl {
 public:
  extra_factory() : custom_service_factory_impl(u"test/extra") {}
  void visit(custom_pointer, custom_pointer) override {}
};

TEST(Registry, AFactoryIsListedForItsLifetimeOnly) {
  {
    extra_factory extra;
    const auto keys = visited_keys();
    ASSERT_EQ(keys.size(), 5u);
    EXPECT_EQ(keys.back(), u"test/extra");
  }
  EXPECT_EQ(visited_keys().size(), 4u);
}

// Visits every factory with a fresh sink; what the host does after loading.
struct published {
  test::publish_sink sink;
  test::registry registry;
  explicit published(bool utilities = true, bool localizer = false, bool typed_route = false) {
    sink.offers_utilities = utilities;
    registry.has_localizer = localizer;
    registry.typed_route = typed_route;
    bundle().visit_services(nullptr, sink.pointer());
    sink.visit_factories(registry.pointer());
  }
  ~published() { set_localizer({}); }

  // The one command of the one utility service.
  tx_custom_pointer command() {
    EXPECT_EQ(sink.utility_services.pairs.size(), 1u);
    if (sink.utility_services.pairs.empty()) return {};
    const tx_custom_pointer service = sink.utility_services.pairs.front();
    test::named_sink names;
    ops<tx_utility_service_interface_2>(service).visit_utilities(
        service.object, names.as<tx_utility_visitor_interface_2>());
    EXPECT_EQ(names.entries.size(), 1u);
    if (names.entries.empty()) return {};
    EXPECT_EQ(names.entries[0].first, u"txk_project_rename");
    return names.entries[0].second;
  }
};

TEST(UtilityService, TheCommandAnswersVersionFourOnlyHasNoImageAndIsAvailable) {
  published p;
  const tx_custom_pointer command = p.command();
  ASSERT_TRUE(present(command));
  for (const char* other :
       {"tx_utility_interface_3", "tx_utility_interface_5", "tx_utility_interface_"}) {
    EXPECT_TRUE(same(test::ask(command, other), {})) << other;
  }
  EXPECT_TRUE(same(test::ask(command, TX_UTILITY_INTERFACE_4), command));
  const auto& t = ops<tx_utility_interface_4>(command);
  t.set_host_handle(command.object, 0x1122334455667788ull);
  EXPECT_TRUE(t.is_available(command.object));
  EXPECT_FALSE(t.image(command.object, {}));
  t.run(command.object);  // without the host's dialog view nothing is shown
}

TEST(UtilityService, TheSameServiceIsPublishedOnEveryVisitAndOnlyWhereAsked) {
  published first;
  published second;
  published without_utilities(false);
  ASSERT_EQ(second.sink.utility_services.pairs.size(), 1u);
  EXPECT_TRUE(same(first.command(), second.command()));
  EXPECT_TRUE(without_utilities.sink.utility_services.pairs.empty());
  EXPECT_EQ(without_utilities.sink.dialog_services.pairs.size(), 2u);
}

TEST(ClientFactory, TheHostsLocalizerIsKeptWhileOfferedByEitherRoute) {
  // The registry hands the localizer service as any service, or through the localizer service
  // visitor; either way the localizer itself arrives through the localizer visitor.
  for (const bool typed_route : {false, true}) {
    published with(true, true, typed_route);
    ASSERT_TRUE(present(localizer())) << typed_route;
    EXPECT_EQ(with.registry.typed_handovers, typed_route ? 1 : 0);
    EXPECT_EQ(resource::string(10), u"from the localizer");
    ASSERT_EQ(with.registry.localizer.requests.size(), 1u);
    EXPECT_EQ(with.registry.localizer.requests[0].reference, 10);
  }
  published without(true, false);
  EXPECT_FALSE(present(localizer()));
  EXPECT_EQ(resource::string(10), u"Переименование элементов проекта");
}

}  // namespace
}  // namespace tx
