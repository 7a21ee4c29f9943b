// The operations driven through their panels' controls, as the host drives them: what each
// reads at apply time, what remember keeps, what reset empties, and when each is idle. (The
// list's order, the panels as they open and the insertion's panel through an Execute show in
// the printed dialogs of the end-to-end cases; chaining is tests/rename/chain_test.cpp.)
#include <gtest/gtest.h>

#include "rename/case_change.h"
#include "rename/erase.h"
#include "rename/find_replace.h"
#include "tx/toolkit/controls.h"

namespace tx {
namespace {

// Types into an input and picks drop-down items through the host's side of the interfaces.
void type(toolkit::assisted_input& input, const char16_t* text) {
  const custom_pointer p = input.pointer();
  static_cast<const tx_assisted_input_interface_3*>(p.table)->set_text(p.object, text);
}
void pick(toolkit::dropdown_base& list, std::int32_t index) {
  const custom_pointer p = list.pointer();
  static_cast<const tx_dropdown_interface_3*>(p.table)->select(p.object, index);
}
void tick(toolkit::checkbox& box, bool on) {
  const custom_pointer p = box.pointer();
  static_cast<const tx_checkbox_interface_2*>(p.table)->set_checked(p.object, on);
}

// The name as the operation leaves it; its answer must tell whether that differs from the name.
std::u16string applied(prjrename_operation& op, const std::u16string& name) {
  std::u16string out;
  const bool changed = op.apply(name, out);
  EXPECT_EQ(changed, out != name) << "applied to a name of " << name.size();
  return out;
}

TEST(FindReplaceOperation, ReadsItsPanelWhenApplied) {
  prjrename_find_replace op;
  auto& p = op.settings();
  type(p.search, u"road");
  type(p.replacement, u"street");
  EXPECT_FALSE(op.is_idle());
  EXPECT_EQ(applied(op, u"Road road ROAD"), u"street street street");
  pick(p.mode, 3);  // all except first
  EXPECT_EQ(applied(op, u"Road road ROAD"), u"road street street");
  tick(p.match_case, true);
  EXPECT_EQ(applied(op, u"Road road ROAD"), u"Road road ROAD");
  pick(p.mode, -1);  // no selection counts as all
  tick(p.match_case, false);
  tick(p.whole_word, true);
  EXPECT_EQ(applied(op, u"railroad road"), u"railroad street");
}

TEST(FindReplaceOperation, RememberKeepsBothTextsResetEmptiesThem) {
  prjrename_find_replace op;
  auto& p = op.settings();
  op.remember();  // empty search: nothing kept
  EXPECT_TRUE(p.search.history().empty());
  type(p.search, u"a");
  op.remember();  // the empty replacement is kept with it
  type(p.search, u"b");
  type(p.replacement, u"c");
  op.remember();
  type(p.search, u"a");
  op.remember();
  EXPECT_EQ(p.search.history(), (std::vector<std::u16string>{u"a", u"b"}));
  EXPECT_EQ(p.replacement.history(), (std::vector<std::u16string>{u"c", u""}));
  pick(p.mode, 2);
  tick(p.whole_word, true);
  op.reset();
  EXPECT_TRUE(p.search.value().empty());
  EXPECT_TRUE(p.replacement.value().empty());
  EXPECT_EQ(p.mode.selection(), 2);  // mode and boxes stay
  EXPECT_TRUE(p.whole_word.is_checked());
  EXPECT_TRUE(op.is_idle());
}

TEST(CaseChangeOperation, ItemsStandNoChangeFirstAndNoSelectionLowers) {
  prjrename_case_change op;
  auto& p = op.settings();
  struct row {
    std::int32_t item;
    const char16_t* expected;
  };
  for (const row& r : {row{0, u"Main Road"}, row{1, u"main road"}, row{2, u"MAIN ROAD"},
                       row{3, u"Main road"}, row{-1, u"main road"}}) {
    pick(p.mode, r.item);
    EXPECT_EQ(applied(op, u"Main Road"), r.expected) << r.item;
    EXPECT_EQ(op.is_idle(), r.item == 0) << r.item;
  }
  op.reset();
  EXPECT_EQ(p.mode.selection(), 0);
}

TEST(EraseOperation, KindCountSideAndCharactersComeFromThePanel) {
  prjrename_erase op;
  auto& p = op.settings();
  EXPECT_EQ(p.kind.selection(), 4);  // "no change" at the start
  EXPECT_TRUE(op.is_idle());
  pick(p.kind, 0);
  EXPECT_TRUE(op.is_idle());  // N = 0
  p.count.set_value(3);
  EXPECT_FALSE(op.is_idle());
  pick(p.side, 1);
  EXPECT_EQ(applied(op, u"abcd"), u"a");
  pick(p.kind, 1);
  EXPECT_TRUE(op.is_idle());  // no characters
  type(p.characters, u"_");
  EXPECT_EQ(applied(op, u"a_b_c"), u"_b_c");
  pick(p.kind, 2);
  EXPECT_EQ(applied(op, u"a_b_c"), u"a_b_");
  pick(p.kind, 3);
  EXPECT_EQ(applied(op, u"archive.tar.gz"), u"archive.tar");
}

TEST(EraseOperation, ResetClearsKindCountTextAndBoxesButKeepsTheSide) {
  prjrename_erase op;
  auto& p = op.settings();
  pick(p.kind, 1);
  p.count.set_value(5);
  pick(p.side, 1);
  type(p.characters, u"x");
  tick(p.match_case, true);
  tick(p.whole_word, true);
  op.remember();
  op.reset();
  EXPECT_EQ(p.kind.selection(), -1);
  EXPECT_EQ(p.count.current(), 0);
  EXPECT_TRUE(p.characters.value().empty());
  EXPECT_FALSE(p.match_case.is_checked());
  EXPECT_FALSE(p.whole_word.is_checked());
  EXPECT_EQ(p.side.selection(), 1);
  EXPECT_EQ(p.characters.history(), std::vector<std::u16string>{u"x"});
  EXPECT_TRUE(op.is_idle());  // no kind selected acts as no change
  EXPECT_EQ(applied(op, u"a.b"), u"a.b");
}

}  // namespace
}  // namespace tx
