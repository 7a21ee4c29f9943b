#include "tx_host/services/publish_sink.h"

#include <gtest/gtest.h>

#include "plugin_doubles.h"
#include "tx/bundle.h"
#include "tx/modal_dialog.h"
#include "tx/referent.h"
#include "tx/utility.h"

namespace tx::host {
namespace {

using service_double = test::plugin_service;

TEST(PublishSink, RootAnswersTheThreeVisitorInterfacesOnly) {
  struct row {
    const char* name;
    bool answered;
  };
  const row rows[] = {
      {TX_SERVICE_VISITOR_INTERFACE_0, true},
      {TX_UTILITY_SERVICE_VISITOR_INTERFACE_2, true},
      {TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102, true},
      {"tx_service_visitor_interface_1", false},
      {"tx_utility_service_visitor_interface_1", false},
      {"tx_utility_service_visitor_interface_3", false},
      {"tx_modal_dialog_service_visitor_interface_101", false},
      {TX_UTILITY_VISITOR_INTERFACE_2, false},
      {TX_REFERRER_INTERFACE_1, false},
      {"", false},
  };
  publish_sink sink;
  const tx_custom_pointer root =
      call(sink.service_visitor(), &tx_service_visitor_interface_0::root);
  ASSERT_TRUE(present(root));
  for (const row& r : rows) {
    // Stale values in the outs: the root clears them before it looks.
    int stale = 0;
    const void* table = &stale;
    void* object = &stale;
    table_of<tx_root_interface>(root).query(root.object, r.name, &table, &object);
    EXPECT_EQ(table != nullptr, r.answered) << r.name;
    EXPECT_EQ(object != nullptr, r.answered) << r.name;
    if (!r.answered) continue;
    EXPECT_EQ(object, sink.object_half()) << r.name;
    // Every answered interface leads back to the same root.
    const tx_custom_pointer back = (*static_cast<const tx_root_fn*>(table))(object);
    EXPECT_TRUE(same(back, root)) << r.name;
  }
}

TEST(PublishSink, RecordsFactoriesInOrderIgnoringNullPairs) {
  service_double a;
  service_double b;
  publish_sink sink;
  const tx_custom_pointer visitor = sink.service_visitor();
  call(visitor, &tx_service_visitor_interface_0::visit, u"tx.tarvex.service/utility",
       a.utility_pair());
  call(visitor, &tx_service_visitor_interface_0::visit, static_cast<const char16_t*>(nullptr),
       b.utility_pair());
  call(visitor, &tx_service_visitor_interface_0::visit, u"ignored", tx_custom_pointer{});

  ASSERT_EQ(sink.factories().size(), 2u);
  EXPECT_EQ(sink.factories()[0].key, u"tx.tarvex.service/utility");
  EXPECT_TRUE(same(sink.factories()[0].factory, a.utility_pair()));
  EXPECT_EQ(sink.factories()[1].key, u"");
  EXPECT_TRUE(same(sink.factories()[1].factory, b.utility_pair()));
}

// The two kinds of published service, reached as a factory does: through the sink's root.
struct service_kind {
  const char* visitor_name;
  tx_custom_pointer (service_double::*pair)();
  std::vector<tx_custom_pointer> (publish_sink::*held)() const;
  const std::vector<std::unique_ptr<host_referrer>>& (publish_sink::*holds)() const;
};

const service_kind kKinds[] = {
    {TX_UTILITY_SERVICE_VISITOR_INTERFACE_2, &service_double::utility_pair,
     &publish_sink::utility_services, &publish_sink::utility_holds},
    {TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102, &service_double::dialog_pair,
     &publish_sink::dialog_services, &publish_sink::dialog_holds},
};

void publish(publish_sink& sink, const service_kind& kind, service_double& service) {
  const tx_custom_pointer visitor = query(sink.service_visitor(), kind.visitor_name);
  // Both service visitors have the same layout: root, then visit(self, service).
  call(visitor, &tx_utility_service_visitor_interface_2::visit, (service.*kind.pair)());
}

TEST(PublishSink, HoldsEachPublishedServiceThroughItsReferentOnly) {
  for (const service_kind& kind : kKinds) {
    service_double service;  // outlives the sink, which detaches from it when destroyed
    service_double unheld{.with_referent = false};
    publish_sink sink;
    publish(sink, kind, service);
    publish(sink, kind, unheld);

    const auto held = (sink.*kind.held)();
    ASSERT_EQ(held.size(), 1u) << kind.visitor_name;
    EXPECT_TRUE(same(held[0], (service.*kind.pair)())) << kind.visitor_name;
    ASSERT_EQ(service.referrers.size(), 1u) << kind.visitor_name;
    EXPECT_TRUE(same(service.referrers[0], (sink.*kind.holds)()[0]->pair())) << kind.visitor_name;
    EXPECT_EQ(service.ask_holds(), std::vector<bool>{true}) << kind.visitor_name;
  }
}

TEST(PublishSink, ReleaseAllDetachesFromEveryServiceAndForgetsAll) {
  service_double utility;
  service_double dialog;
  publish_sink sink;
  publish(sink, kKinds[0], utility);
  publish(sink, kKinds[1], dialog);
  call(sink.service_visitor(), &tx_service_visitor_interface_0::visit, u"key",
       utility.utility_pair());

  sink.release_all();
  EXPECT_TRUE(utility.referrers.empty());
  EXPECT_TRUE(dialog.referrers.empty());
  EXPECT_EQ(utility.detaches, 1u);
  EXPECT_EQ(dialog.detaches, 1u);
  EXPECT_TRUE(sink.utility_services().empty());
  EXPECT_TRUE(sink.dialog_services().empty());
  EXPECT_TRUE(sink.factories().empty());
}

TEST(PublishSink, ServiceDestroyedByThePluginIsForgottenWithoutDetaching) {
  service_double service;
  publish_sink sink;
  publish(sink, kKinds[0], service);
  service.destroy();

  EXPECT_TRUE(sink.utility_services().empty());
  sink.release_all();
  EXPECT_EQ(service.detaches, 0u);
}

TEST(PublishSink, DestructionReleasesWhatIsStillHeld) {
  service_double service;
  {
    publish_sink sink;
    publish(sink, kKinds[0], service);
  }
  EXPECT_TRUE(service.referrers.empty());
  EXPECT_EQ(service.detaches, 1u);
}

TEST(HostReferrer, HoldsOnlyItsOwnReferentAndOnlyUntilReleased) {
  service_double mine;
  service_double other;
  host_referrer referrer(mine.utility_pair(), mine.referent_pair());
  EXPECT_FALSE(call(referrer.pair(), &tx_referrer_interface_1::holds, mine.referent_pair()))
      << "nothing held before attaching";

  ASSERT_TRUE(referrer.attach());
  EXPECT_TRUE(call(referrer.pair(), &tx_referrer_interface_1::holds, mine.referent_pair()));
  EXPECT_FALSE(call(referrer.pair(), &tx_referrer_interface_1::holds, other.referent_pair()));

  // Told about another referent's death: still holds its own.
  call(referrer.pair(), &tx_referrer_interface_1::released, other.referent_pair());
  EXPECT_TRUE(referrer.holding());

  call(referrer.pair(), &tx_referrer_interface_1::released, mine.referent_pair());
  EXPECT_FALSE(referrer.holding());
  EXPECT_FALSE(present(referrer.service()));
  EXPECT_FALSE(call(referrer.pair(), &tx_referrer_interface_1::holds, mine.referent_pair()));
}

TEST(HostReferrer, AnotherHolderKeepsTheReferentWhenOneReleases) {
  service_double service;
  host_referrer first(service.utility_pair(), service.referent_pair());
  host_referrer second(service.utility_pair(), service.referent_pair());
  ASSERT_TRUE(first.attach());
  ASSERT_TRUE(second.attach());

  first.release();
  EXPECT_EQ(service.holders_at_last_detach, 1u) << "the second still answers holding";
  ASSERT_EQ(service.referrers.size(), 1u);
  EXPECT_TRUE(same(service.referrers[0], second.pair()));

  first.release();
  EXPECT_EQ(service.detaches, 1u) << "a second release does nothing";
}

TEST(HostReferrer, CannotAttachWithoutReferentOrService) {
  service_double service;
  host_referrer no_referent(service.utility_pair(), {});
  host_referrer no_service({}, service.referent_pair());
  EXPECT_FALSE(no_referent.attach());
  EXPECT_FALSE(no_service.attach());
  EXPECT_TRUE(service.referrers.empty());
}

}  // namespace
}  // namespace tx::host
