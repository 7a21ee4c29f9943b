// The bundle, the factory registry and the services the factories publish, in-process.
#define TX_BUILDING_PLUGIN  // declares the plug-in's exports, which this program links
#include <gtest/gtest.h>

#include "host_doubles.h"
#include "plugin/localizer.h"
#include "plugin/modal_dialog_service.h"
#include "plugin/project_rename_utility.h"
#include "plugin/service_factory.h"
#include "resources/loader.h"
#include "tx/bundle.h"
#include "tx_host/basic.h"

namespace tx {
namespace {

const tx_bundle_table& bundle() {
  return test::table<tx_bundle_table>(tx_bundle_interface_to_custom_pointer(nullptr));
}

std::vector<std::u16string> visited_keys() {
  test::publish_sink sink;
  bundle().visit_services(nullptr, sink.pointer());
  std::vector<std::u16string> keys;
  for (const auto& [key, factory] : sink.factories) keys.push_back(key);
  return keys;
}

TEST(Bundle, EntryKeepsTheHostsContextAndAnswersNoInterface) {
  int context = 0;
  const tx_custom_pointer b = tx_bundle_interface_to_custom_pointer(&context);
  EXPECT_EQ(b.object, &context);
  for (const char* name : {TX_UTILITY_INTERFACE_4, TX_REFERENT_INTERFACE_1,
                           TX_SERVICE_VISITOR_INTERFACE_0, "", "tx_bundle_interface_0"}) {
    const tx_custom_pointer found = test::ask(b, name);
    EXPECT_EQ(found.table, nullptr) << name;
    EXPECT_EQ(found.object, nullptr) << name;
  }
}

TEST(Bundle, FactoriesAreVisitedInRegistrationOrder) {
  EXPECT_EQ(visited_keys(), (std::vector<std::u16string>{u"", TX_UTILITY_NAMESPACE_KEY, u"", u""}));
}

TEST(Bundle, ReservedSlotsDoNothingBeforeOrAfterVisiting) {
  const auto before = visited_keys();
  for (int round = 0; round < 3; ++round) {
    bundle().reserved_2();
    bundle().reserved_3();
    bundle().reserved_4();
    bundle().reserved_5();
  }
  EXPECT_EQ(visited_keys(), before);
  EXPECT_EQ(bundle().reserved_2, &scary_vcl_bug_crashes_everything_on_unloading);
  EXPECT_EQ(bundle().reserved_5, &scary_vcl_bug_crashes_everything_on_unloading);
}

TEST(Bundle, VisitorWithANullHalfVisitsNothing) {
  test::publish_sink sink;
  bundle().visit_services(nullptr, {sink.pointer().table, nullptr});
  bundle().visit_services(nullptr, {nullptr, &sink});
  EXPECT_TRUE(sink.factories.empty());
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

// Visits every factory with a fresh sink; what the host would do after loading.
struct published {
  test::publish_sink sink;
  test::registry registry;
  explicit published(bool utilities = true, bool dialogs = true, bool localizer = false) {
    sink.offers_utilities = utilities;
    sink.offers_dialogs = dialogs;
    registry.has_localizer = localizer;
    bundle().visit_services(nullptr, sink.pointer());
    sink.visit_factories(registry.pointer());
  }
  ~published() { set_localizer({}); }
};

std::pair<std::u16string, tx_custom_pointer> only_utility(tx_custom_pointer service) {
  test::named_sink names;
  test::table<tx_utility_service_interface_2>(service).visit_utilities(service.object,
                                                                       names.utilities());
  EXPECT_EQ(names.entries.size(), 1u);
  return names.entries.empty() ? std::pair<std::u16string, tx_custom_pointer>{}
                               : names.entries.front();
}

std::u16string caption_of(tx_custom_pointer command) {
  test::text_sink text;
  test::table<tx_utility_interface_4>(command).caption(command.object, text.pointer());
  return text.texts.empty() ? u"<none>" : text.texts.front();
}

TEST(UtilityService, PublishesTheRenameCommandWithItsCaption) {
  published p;
  ASSERT_EQ(p.sink.utility_services.size(), 1u);
  const auto [id, command] = only_utility(p.sink.utility_services.front());
  EXPECT_EQ(id, u"txk_project_rename");
  tx_host_set_lng(0);
  EXPECT_EQ(caption_of(command), u"Переименование элементов проекта");
  tx_host_set_lng(50000);
  EXPECT_EQ(caption_of(command), u"Rename Project Elements");
  tx_host_set_lng(0);
}

TEST(UtilityService, CommandAnswersOnlyVersionFour) {
  published p;
  ASSERT_EQ(p.sink.utility_services.size(), 1u);
  const auto command = only_utility(p.sink.utility_services.front()).second;
  EXPECT_FALSE(test::is_present(test::ask(command, "tx_utility_interface_3")));
  EXPECT_FALSE(test::is_present(test::ask(command, "tx_utility_interface_5")));
  const tx_custom_pointer four = test::ask(command, TX_UTILITY_INTERFACE_4);
  EXPECT_EQ(four.table, command.table);
  EXPECT_EQ(four.object, command.object);
}

TEST(UtilityService, CommandHasNoImageAndIsAvailable) {
  published p;
  ASSERT_EQ(p.sink.utility_services.size(), 1u);
  const auto command = only_utility(p.sink.utility_services.front()).second;
  const auto& t = test::table<tx_utility_interface_4>(command);
  t.set_host_handle(command.object, 0x1122334455667788ull);
  EXPECT_TRUE(t.is_available(command.object));
  EXPECT_FALSE(t.image(command.object, {}));
  t.reserved_6(command.object);
  t.run(command.object);
}

TEST(UtilityService, TheSameServiceIsPublishedOnEveryVisit) {
  published first;
  published second;
  ASSERT_EQ(first.sink.utility_services.size(), 1u);
  ASSERT_EQ(second.sink.utility_services.size(), 1u);
  EXPECT_EQ(first.sink.utility_services[0].object, second.sink.utility_services[0].object);
}

TEST(UtilityService, NothingIsPublishedToAHostWithoutAUtilityVisitor) {
  published p(false, true);
  EXPECT_TRUE(p.sink.utility_services.empty());
  EXPECT_EQ(p.sink.dialog_services.size(), 2u);
}

TEST(ModalDialogService, TheRenameDialogIsNamedAndTheGenericServiceNamesNone) {
  published p;
  ASSERT_EQ(p.sink.dialog_services.size(), 2u);
  std::vector<std::size_t> counts;
  std::vector<std::u16string> ids;
  for (const tx_custom_pointer service : p.sink.dialog_services) {
    test::named_sink names;
    test::table<tx_modal_dialog_service_interface_102>(service).visit_dialogs(service.object,
                                                                              names.dialogs());
    counts.push_back(names.entries.size());
    for (const auto& e : names.entries) ids.push_back(e.first);
  }
  EXPECT_EQ(counts, (std::vector<std::size_t>{0, 1}));
  EXPECT_EQ(ids, (std::vector<std::u16string>{u"txk_project_rename"}));
}

TEST(ModalDialogService, TheHostsViewIsKeptForTheDialog) {
  published p;
  ASSERT_EQ(p.sink.dialog_services.size(), 2u);
  const tx_custom_pointer service = p.sink.dialog_services[1];
  test::named_sink names;
  test::table<tx_modal_dialog_service_interface_102>(service).visit_dialogs(service.object,
                                                                            names.dialogs());
  ASSERT_EQ(names.entries.size(), 1u);
  const tx_custom_pointer dialog = names.entries[0].second;
  int view_object = 0;
  const tx_modal_dialog_view_interface_101 view_table{nullptr, nullptr};
  test::table<tx_modal_dialog_interface_101>(dialog).set_view(dialog.object,
                                                              {&view_table, &view_object});
  auto& kept = modal_dialog<&project_rename_utility::id>::instance();
  EXPECT_EQ(kept.view().object, &view_object);
  test::table<tx_modal_dialog_interface_101>(dialog).set_view(dialog.object,
                                                              {&view_table, nullptr});
  EXPECT_FALSE(present(kept.view()));
}

TEST(ClientFactory, KeepsTheHostsLocalizerWhichThenAnswersPositiveReferences) {
  published p(true, true, true);
  ASSERT_TRUE(present(localizer()));
  EXPECT_EQ(resource::string(10), u"localized:10");
  EXPECT_EQ(p.registry.asked, (std::vector<int>{10}));
}

TEST(ClientFactory, AHostWithoutLocalizerLeavesTheOwnStrings) {
  { published with(true, true, true); }
  published without(true, true, false);
  EXPECT_FALSE(present(localizer()));
  tx_host_set_lng(0);
  EXPECT_EQ(resource::string(10), u"Переименование элементов проекта");
}

}  // namespace
}  // namespace tx
