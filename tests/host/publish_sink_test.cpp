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
  publish_sink sink;
  const tx_custom_pointer root =
      call(sink.service_visitor(), &tx_service_visitor_interface_0::root);
  ASSERT_TRUE(present(root));
  for (const char* name : {TX_SERVICE_VISITOR_INTERFACE_0, TX_UTILITY_SERVICE_VISITOR_INTERFACE_2,
                           TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102}) {
    const tx_custom_pointer found = test::ask(sink.service_visitor(), name);
    ASSERT_NE(found.table, nullptr) << name;
    EXPECT_EQ(found.object, sink.object_half()) << name;
    // Every answered interface leads back to the same root.
    EXPECT_TRUE(same((*static_cast<const tx_root_fn*>(found.table))(found.object), root)) << name;
  }
  // Another name, another version included: the root clears the stale outs it was handed.
  for (const char* name :
       {"tx_service_visitor_interface_1", "tx_utility_service_visitor_interface_1",
        "tx_utility_service_visitor_interface_3", "tx_modal_dialog_service_visitor_interface_101",
        TX_UTILITY_VISITOR_INTERFACE_2, TX_REFERRER_INTERFACE_1, ""}) {
    const tx_custom_pointer found = test::ask(sink.service_visitor(), name);
    EXPECT_TRUE(found.table == nullptr && found.object == nullptr) << name;
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

TEST(PublishSink, HoldsEachPublishedServiceThroughItsReferentOnly) {
  service_double utility;  // outlive the sink, which detaches from them when destroyed
  service_double dialog;
  service_double unheld{.with_referent = false};
  publish_sink sink;
  // Reached as a factory reaches them, through the sink's root. Both service visitors have the
  // same layout: root, then visit(self, service).
  const auto publish = [&sink](const char* visitor, tx_custom_pointer service) {
    call(query(sink.service_visitor(), visitor), &tx_utility_service_visitor_interface_2::visit,
         service);
  };
  publish(TX_UTILITY_SERVICE_VISITOR_INTERFACE_2, utility.utility_pair());
  publish(TX_UTILITY_SERVICE_VISITOR_INTERFACE_2, unheld.utility_pair());
  publish(TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102, dialog.dialog_pair());
  publish(TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102, unheld.dialog_pair());

  ASSERT_EQ(sink.utility_services().size(), 1u);
  EXPECT_TRUE(same(sink.utility_services()[0], utility.utility_pair()));
  ASSERT_EQ(sink.dialog_services().size(), 1u);
  EXPECT_TRUE(same(sink.dialog_services()[0], dialog.dialog_pair()));
  ASSERT_EQ(utility.referrers.size(), 1u);
  EXPECT_TRUE(same(utility.referrers[0], sink.utility_holds()[0]->pair()));
  ASSERT_EQ(dialog.referrers.size(), 1u);
  EXPECT_TRUE(same(dialog.referrers[0], sink.dialog_holds()[0]->pair()));
  EXPECT_EQ(utility.ask_holds(), std::vector<bool>{true});
  EXPECT_EQ(dialog.ask_holds(), std::vector<bool>{true});
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

TEST(HostReferrer, AnotherHolderKeepsTheReferentAndDestructionReleases) {
  service_double service;
  host_referrer first(service.utility_pair(), service.referent_pair());
  {
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
  EXPECT_TRUE(service.referrers.empty()) << "destroying a holder releases";
  EXPECT_EQ(service.detaches, 2u);
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
