// The shown rows of an outline: a rebuild walks what is expanded; an expand or a collapse splices
// one subtree in or out and leaves exactly what a rebuild would give.
#include "tx_host/window_logic/visible_rows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake_outline.h"

namespace tx::test {
namespace {

using host::window_logic::visible_rows;
using positions = std::vector<std::size_t>;

// The rows as keys, each after a dot per level: "1 .2 ..3".
std::string shown(const visible_rows& rows) {
  std::string text;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i > 0) text += ' ';
    text += std::string(static_cast<std::size_t>(rows[i].depth), '.') + std::to_string(rows[i].key);
  }
  return text;
}

TEST(VisibleRows, RebuildWalksTheExpandedRowsAndListsTheSelected) {
  struct rebuild_case {
    const char* tree;
    const char* shown;
    positions selected;
  };
  const rebuild_case cases[] = {
      {"", "", {}},
      {"1 2* 3", "1 2 3", {1}},
      // Rows under a collapsed row are not shown, selected or not.
      {"1+(2*(3*) 4*) 5*", "1 .2 .4 5", {1, 2, 3}},
      {"1+(2+(3+(4*))) 5", "1 .2 ..3 ...4 5", {3}},
      {"1(2+(3)) 4+", "1 4", {}},
  };
  for (const rebuild_case& c : cases) {
    SCOPED_TRACE(c.tree);
    const shown_outline o(c.tree);
    EXPECT_EQ(shown(o.rows), c.shown);
    EXPECT_EQ(o.selected, c.selected);
  }
}

TEST(VisibleRows, ASpliceLeavesWhatARebuildGives) {
  struct splice_case {
    const char* name;
    const char* tree;
    std::uint64_t key;  // the row expanded (when collapsed) or collapsed (when expanded)
    const char* shown;
    std::size_t spliced;
    positions selected;  // the selected rows among those put in
  };
  const splice_case cases[] = {
      {"expand first", "1(2 3) 4", 1, "1 .2 .3 4", 2, {}},
      {"expand middle", "1 2(3 4*) 5", 2, "1 2 .3 .4 5", 2, {3}},
      {"expand last", "1 2(3)", 2, "1 2 .3", 1, {}},
      {"expand brings expanded grandchildren", "1(2+(3* 4) 5) 6", 1, "1 .2 ..3 ..4 .5 6", 4, {2}},
      {"expand keeps collapsed grandchildren", "1(2(3) 4)", 1, "1 .2 .4", 2, {}},
      {"expand nested", "1+(2(3*) 4) 5", 2, "1 .2 ..3 .4 5", 1, {2}},
      {"expand without children", "1 2 3", 2, "1 2 3", 0, {}},
      {"collapse first", "1+(2 3) 4", 1, "1 4", 2, {}},
      {"collapse takes nested rows", "1 2+(3+(4 5) 6) 7", 2, "1 2 7", 4, {}},
      {"collapse last", "1 2+(3)", 2, "1 2", 1, {}},
      {"collapse nested", "1+(2+(3 4) 5) 6", 2, "1 .2 .5 6", 2, {}},
  };
  for (const splice_case& c : cases) {
    SCOPED_TRACE(c.name);
    shown_outline o(c.tree);
    fake_row& row = o.outline.row(c.key);
    const std::optional<std::size_t> at = o.rows.find(fake_outline::pair_of(&row));
    ASSERT_TRUE(at.has_value());
    row.expanded = !row.expanded;
    positions selected;
    const std::size_t spliced = row.expanded ? o.rows.expand(*at, selected) : o.rows.collapse(*at);
    EXPECT_EQ(spliced, c.spliced);
    EXPECT_EQ(selected, c.selected);
    EXPECT_EQ(shown(o.rows), c.shown);
    visible_rows again(o.outline.pointer());
    again.rebuild(selected);
    EXPECT_EQ(shown(o.rows), shown(again));
  }
}

TEST(VisibleRows, ASpliceOutsideTheRowsChangesNothing) {
  shown_outline o("1+(2) 3(4)");
  visible_rows& rows = o.rows;
  positions selected;
  EXPECT_EQ(rows.expand(3, selected), 0u);
  EXPECT_EQ(rows.collapse(3), 0u);
  EXPECT_EQ(rows.collapse(99), 0u);
  EXPECT_EQ(shown(rows), "1 .2 3");
}

TEST(VisibleRows, FindsParentsSubtreesAndKeys) {
  const shown_outline o("1+(2+(3 4) 5) 6");
  const visible_rows& rows = o.rows;
  ASSERT_EQ(shown(rows), "1 .2 ..3 ..4 .5 6");
  struct position_case {
    std::size_t at;
    std::optional<std::size_t> parent;
    std::size_t subtree_end;
  };
  const position_case cases[] = {
      {0, std::nullopt, 5}, {1, 0, 4}, {2, 1, 3}, {3, 1, 4}, {4, 0, 5}, {5, std::nullopt, 6},
  };
  for (const position_case& c : cases) {
    SCOPED_TRACE(c.at);
    EXPECT_EQ(rows.parent(c.at), c.parent);
    EXPECT_EQ(rows.subtree_end(c.at), c.subtree_end);
  }
  EXPECT_EQ(rows.parent(99), std::nullopt);
  EXPECT_EQ(rows.find_key(6, 0), 5u);
  EXPECT_EQ(rows.find_key(1, 5), 0u);
  EXPECT_EQ(rows.find_key(4, 99), 3u);
  EXPECT_EQ(rows.find_key(99, 2), std::nullopt);
  EXPECT_EQ(rows.find(tx_custom_pointer{}), std::nullopt);
}

TEST(VisibleRows, FindKeyLooksOutwardsFromWhereTheRowWas) {
  // Two rows answering one key (a plug-in gone wrong): the nearer one is found.
  const shown_outline o("7 1 2 7");
  EXPECT_EQ(o.rows.find_key(7, 1), 0u);
  EXPECT_EQ(o.rows.find_key(7, 2), 3u);
  EXPECT_EQ(shown_outline("").rows.find_key(7, 0), std::nullopt);
}

TEST(VisibleRows, AnOutlineThatAnswersNonsenseIsShownSoFar) {
  shown_outline o("1+");
  visible_rows& rows = o.rows;
  positions selected;
  // Every row its own only child: the walk stops at a depth no project reaches.
  o.outline.looping_count = 1;
  rows.rebuild(selected);
  EXPECT_GT(rows.size(), 100u);
  EXPECT_LT(rows.size(), 1000u);
  EXPECT_EQ(rows[rows.size() - 1].depth, static_cast<std::int32_t>(rows.size()) - 1);
  o.outline.looping_count = -5;
  rows.rebuild(selected);
  EXPECT_EQ(rows.size(), 0u);
}

}  // namespace
}  // namespace tx::test
