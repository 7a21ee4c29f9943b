// The referent's attach/detach rules, seen from its referrers.
#include "plugin/referent.h"

#include <gtest/gtest.h>

#include "host_doubles.h"
#include "plugin/utility_service.h"

namespace tx {
namespace {

// A referent that reports its own destruction.
class probe final : public referent<utility_service_impl> {
 public:
  explicit probe(bool* destroyed) : destroyed_(destroyed) {}
  ~probe() override { *destroyed_ = true; }
  custom_pointer referent() override { return referent_pointer(); }
  void visit_utilities(custom_pointer) override {}

 private:
  bool* destroyed_;
};

struct scene {
  bool destroyed = false;
  probe* object = new probe(&destroyed);  // destroyed by its last detach
  std::vector<std::string> log;
  std::vector<test::referrer> referrers;

  explicit scene(std::vector<bool> holding) {
    referrers.reserve(holding.size());
    for (std::size_t i = 0; i < holding.size(); ++i) {
      referrers.push_back(
          {.name = std::string(1, static_cast<char>('A' + i)), .holding = holding[i], .log = &log});
    }
  }
  ~scene() {
    if (!destroyed) delete object;
  }
  custom_pointer referent_pair() { return object->referent_pointer(); }
  std::size_t attach(custom_pointer r) {
    return test::ops<tx_referent_interface_1>(referent_pair()).attach(referent_pair().object, r);
  }
  void detach(custom_pointer r) {
    test::ops<tx_referent_interface_1>(referent_pair()).detach(referent_pair().object, r);
  }
  // Attaches every referrer in order: each is appended and the count answered.
  void attach_all() {
    for (std::size_t i = 0; i < referrers.size(); ++i) {
      EXPECT_EQ(attach(referrers[i].pointer()), i + 1);
      EXPECT_TRUE(same(object->referrer_at(i), referrers[i].pointer())) << i;
    }
    EXPECT_FALSE(present(object->referrer_at(referrers.size())));
  }
};

TEST(Referent, DetachAsksTheOthersInOrderAndReleasesWhenNobodyHolds) {
  // Who holds, whom to detach, the calls the others see, whether the referent lives.
  struct detach_case {
    const char* name;
    std::vector<bool> holding;
    std::size_t detached;
    std::vector<std::string> calls;
    bool survives;
  };
  const detach_case cases[] = {
      {"last referrer destroys without notice", {true}, 0, {}, false},
      {"stops at the first holder", {false, false, true, true}, 0, {"B:holds", "C:holds"}, true},
      {"nobody holds: each told in order",
       {true, false, false},
       0,
       {"B:holds", "C:holds", "B:released", "C:released"},
       false},
      {"detaching the middle one asks the rest",
       {false, true, false},
       1,
       {"A:holds", "C:holds", "A:released", "C:released"},
       false},
  };
  for (const detach_case& c : cases) {
    SCOPED_TRACE(c.name);
    scene s(c.holding);
    s.attach_all();
    const custom_pointer referent = s.referent_pair();
    s.detach(s.referrers[c.detached].pointer());
    EXPECT_EQ(s.log, c.calls);
    EXPECT_EQ(!s.destroyed, c.survives);
    if (c.survives) {
      EXPECT_EQ(s.object->referrer_count(), c.holding.size() - 1);
    }
    // Each referrer told of the release is handed the referent's own pair.
    for (const test::referrer& r : s.referrers) {
      EXPECT_TRUE(r.last_released.object == nullptr || same(r.last_released, referent)) << r.name;
    }
  }
}

TEST(Referent, NullEntryCountsAsHoldingWithoutAnyCall) {
  scene s({false});
  s.attach(s.referrers[0].pointer());
  // A referrer stored with a null object: its table must never be called.
  s.attach({s.referrers[0].pointer().table, nullptr});
  s.detach(s.referrers[0].pointer());
  EXPECT_FALSE(s.destroyed);
  EXPECT_TRUE(s.log.empty());
  EXPECT_EQ(s.object->referrer_count(), 1u);
}

TEST(Referent, DetachingAnUnknownPairRemovesNothingButStillAsks) {
  scene s({true, false});
  s.attach(s.referrers[0].pointer());
  s.detach(s.referrers[1].pointer());
  EXPECT_EQ(s.log, (std::vector<std::string>{"A:holds"}));
  EXPECT_FALSE(s.destroyed);
  EXPECT_EQ(s.object->referrer_count(), 1u);
}

TEST(Referent, DetachInsideAQuestionGoesStraightToRelease) {
  scene s({true, false, true});
  s.attach_all();
  // While B is asked, C detaches: the referent is released at once, telling only B.
  s.referrers[1].on_holds = [&] { s.detach(s.referrers[2].pointer()); };
  s.detach(s.referrers[0].pointer());
  EXPECT_EQ(s.log, (std::vector<std::string>{"B:holds", "B:released"}));
  EXPECT_TRUE(s.destroyed);
}

TEST(Ref, StrongKeepsAliveWeakIsClearedWhenItDies) {
  bool destroyed = false;
  auto* object = new probe(&destroyed);
  const custom_pointer service = pointer_to<utility_service_impl>(object);
  ref<tx_utility_service_interface_2, 0> weak;
  {
    ref<tx_utility_service_interface_2, 1> strong(service);
    weak.reset(service);
    EXPECT_EQ(object->referrer_count(), 2u);
    weak.reset();  // a weak holder leaving does not end the referent
    EXPECT_FALSE(destroyed);
    weak.reset(service);
  }
  EXPECT_TRUE(destroyed);
  EXPECT_FALSE(weak);
}

TEST(Ref, HostHolderOutlivesThePluginsStrongReference) {
  bool destroyed = false;
  auto* object = new probe(&destroyed);
  const custom_pointer service = pointer_to<utility_service_impl>(object);
  std::vector<std::string> log;
  test::referrer host{.name = "host", .log = &log};
  auto strong = std::make_unique<ref<tx_utility_service_interface_2, 1>>(service);
  object->attach(host.pointer());
  strong.reset();
  EXPECT_FALSE(destroyed);
  EXPECT_EQ(log, (std::vector<std::string>{"host:holds"}));
  object->detach(host.pointer());
  EXPECT_TRUE(destroyed);
}

}  // namespace
}  // namespace tx
