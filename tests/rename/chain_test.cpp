// The chain: operations applied in order, each on the output of the one before, an operation
// that changes nothing passing the name on, over any range of operations or pointers to them.
#include "rename/chain.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "plugin_separators.h"
#include "rename/case_change_rule.h"
#include "rename/erase_rule.h"
#include "rename/find_replace_rule.h"
#include "rename/insert_rule.h"

namespace tx::rename {
namespace {

// An operation as the dialog holds them: polymorphic, applied through a base pointer.
class operation {
 public:
  virtual ~operation() = default;
  virtual bool apply(const std::u16string& name, std::u16string& result) = 0;
};

// One transformation with fixed settings; records every name it is given.
template <class Transform>
class step final : public operation {
 public:
  explicit step(Transform transform) : transform_(std::move(transform)) {}
  bool apply(const std::u16string& name, std::u16string& result) override {
    seen.push_back(name);
    return transform_(name, result);
  }
  std::vector<std::u16string> seen;

 private:
  Transform transform_;
};

template <class Transform>
std::unique_ptr<step<Transform>> make_step(Transform transform) {
  return std::make_unique<step<Transform>>(std::move(transform));
}

auto replace_road() {
  return make_step([](const std::u16string& name, std::u16string& result) {
    return find_replace(name, {u"road", u"street", false, true, replace_mode::all},
                        testing::plugin_separators(), result);
  });
}
auto case_step(case_mode mode) {
  return make_step([mode](const std::u16string& name, std::u16string& result) {
    return change_case(name, mode, testing::plugin_separators(), result);
  });
}
auto insert_step(std::u16string_view text, insert_mode mode) {
  return make_step([text, mode](const std::u16string& name, std::u16string& result) {
    return insert_text(name, {text, mode}, result);
  });
}
auto erase_extension() {
  return make_step([](const std::u16string& name, std::u16string& result) {
    return erase(name, {erase_kind::extension}, testing::plugin_separators(), result);
  });
}

TEST(Chain, EachOperationWorksOnThePreviousOutput) {
  auto replace = replace_road();
  auto first_letter = case_step(case_mode::first_letter);
  auto insert = insert_step(u"_v2", insert_mode::end);
  auto cut = erase_extension();
  const std::vector<operation*> active{replace.get(), first_letter.get(), insert.get(), cut.get()};

  const chain_result out = chain(active, u"Main ROAD.tab");
  EXPECT_EQ(out.name, u"Main street");
  EXPECT_TRUE(out.changed);
  // First letter changes nothing here and passes the name on as it got it.
  EXPECT_EQ(replace->seen, std::vector<std::u16string>{u"Main ROAD.tab"});
  EXPECT_EQ(first_letter->seen, std::vector<std::u16string>{u"Main street.tab"});
  EXPECT_EQ(insert->seen, std::vector<std::u16string>{u"Main street.tab"});
  EXPECT_EQ(cut->seen, std::vector<std::u16string>{u"Main street.tab_v2"});
}

TEST(Chain, OrderDecidesAndTheFlagTellsWhetherAnyOperationChangedTheName) {
  auto insert = insert_step(u"New ", insert_mode::begin);
  auto lower = case_step(case_mode::lower);
  auto upper = case_step(case_mode::upper);
  auto replace = replace_road();
  struct chain_case {
    std::vector<operation*> active;
    const char16_t* name;
    const char16_t* expected;
    bool changed;
  };
  const chain_case cases[] = {
      {{insert.get(), lower.get()}, u"ROADS", u"new roads", true},
      {{lower.get(), insert.get()}, u"ROADS", u"New roads", true},
      {{replace.get(), lower.get()}, u"river", u"river", false},
      {{}, u"Main ROAD", u"Main ROAD", false},
      // A change undone by a later operation still counts.
      {{upper.get(), lower.get()}, u"river", u"river", true},
  };
  for (const chain_case& c : cases) {
    const chain_result out = chain(c.active, c.name);
    EXPECT_EQ(out.name, c.expected) << c.active.size();
    EXPECT_EQ(out.changed, c.changed) << c.active.size();
  }
}

TEST(Chain, AcceptsOwningPointersReferencesAndObjects) {
  std::vector<std::unique_ptr<operation>> owned;
  owned.push_back(replace_road());
  owned.push_back(case_step(case_mode::upper));
  EXPECT_EQ(chain(owned, u"old road").name, u"OLD STREET");

  auto lower = case_step(case_mode::lower);
  auto insert = insert_step(u"x_", insert_mode::begin);
  const std::vector<std::reference_wrapper<operation>> references{*insert, *lower};
  EXPECT_EQ(chain(references, u"AB").name, u"x_ab");

  struct suffix {
    bool apply(const std::u16string& name, std::u16string& result) const {
      return insert_text(name, {u"!", insert_mode::end}, result);
    }
  };
  const suffix objects[2];
  EXPECT_EQ(chain(objects, u"a").name, u"a!!");
}

TEST(Chain, BuffersCarryNothingBetweenNames) {
  auto replace = replace_road();
  auto insert = insert_step(u"_1", insert_mode::end);
  const std::vector<operation*> active{replace.get(), insert.get()};
  std::u16string current, scratch;
  EXPECT_TRUE(run_chain(active, u"a very long road name to grow both buffers", current, scratch));
  EXPECT_EQ(current, u"a very long street name to grow both buffers_1");
  const std::vector<operation*> only_replace{replace.get()};
  EXPECT_FALSE(run_chain(only_replace, u"b", current, scratch));
  EXPECT_EQ(current, u"b");
}

}  // namespace
}  // namespace tx::rename
