// How the list's focus, anchor and selection follow their rows through a splice, what the list
// must change to show a selection, and rows found again by key after a rebuild.
#include "tx_host/window_logic/row_positions.h"

#include <gtest/gtest.h>

#include <vector>

#include "fake_outline.h"

namespace tx::test {
namespace {

using host::window_logic::row_mark;
using host::window_logic::row_splice;
using host::window_logic::selection_change;
using host::window_logic::visible_rows;
using positions = std::vector<std::size_t>;

TEST(RowSplice, MarksMoveWithTheirRows) {
  struct mark_case {
    row_splice splice;
    std::size_t position;
    std::size_t moved;
  };
  const mark_case cases[] = {
      // Three rows put in after row 2.
      {{2, 0, 3}, 0, 0},
      {{2, 0, 3}, 2, 2},
      {{2, 0, 3}, 3, 6},
      {{2, 0, 3}, 10, 13},
      // Three rows taken out after row 2: a mark on them goes to the row.
      {{2, 3, 0}, 1, 1},
      {{2, 3, 0}, 2, 2},
      {{2, 3, 0}, 3, 2},
      {{2, 3, 0}, 5, 2},
      {{2, 3, 0}, 6, 3},
      {{2, 3, 0}, 9, 6},
      // At the first row, and a splice of nothing.
      {{0, 4, 0}, 4, 0},
      {{0, 0, 2}, 0, 0},
      {{0, 0, 2}, 1, 3},
      {{5, 0, 0}, 7, 7},
  };
  for (const mark_case& c : cases) {
    SCOPED_TRACE(testing::Message() << "at " << c.splice.at << " -" << c.splice.removed << " +"
                                    << c.splice.inserted << " position " << c.position);
    EXPECT_EQ(c.splice.moved(c.position), c.moved);
  }
}

TEST(RowSplice, TheSelectionMovesAndLosesTheRowsTakenOut) {
  struct selection_case {
    const char* name;
    row_splice splice;
    positions selected;
    positions inserted;
    positions after;
  };
  const selection_case cases[] = {
      {"expand: rows after shift", {1, 0, 2}, {0, 1, 3}, {}, {0, 1, 5}},
      {"expand: selected rows put in", {1, 0, 3}, {0, 2}, {2, 4}, {0, 2, 4, 5}},
      {"expand at the end", {3, 0, 2}, {3}, {5}, {3, 5}},
      {"collapse: rows under go", {1, 3, 0}, {1, 2, 4, 5, 7}, {}, {1, 2, 4}},
      {"collapse at the start", {0, 2, 0}, {0, 1, 2, 3}, {}, {0, 1}},
      {"collapse at the end", {2, 2, 0}, {0, 3, 4}, {}, {0}},
      {"nothing selected", {1, 2, 0}, {}, {}, {}},
  };
  for (const selection_case& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(c.splice.selection(c.selected, c.inserted), c.after);
  }
}

TEST(SelectionChanges, TheListChangesOnlyWhatDiffers) {
  struct change_case {
    positions now;
    positions wanted;
    std::vector<std::pair<std::size_t, bool>> changes;
  };
  const change_case cases[] = {
      {{}, {}, {}},
      {{1, 2}, {1, 2}, {}},
      {{}, {0, 3}, {{0, true}, {3, true}}},
      {{0, 3}, {}, {{0, false}, {3, false}}},
      {{1, 4, 6}, {2, 4, 7}, {{1, false}, {2, true}, {6, false}, {7, true}}},
      {{5}, {1, 5, 9}, {{1, true}, {9, true}}},
  };
  for (const change_case& c : cases) {
    std::vector<std::pair<std::size_t, bool>> got;
    for (const selection_change& s : host::window_logic::selection_changes(c.now, c.wanted)) {
      got.emplace_back(s.position, s.selected);
    }
    EXPECT_EQ(got, c.changes);
  }
}

TEST(RowMark, FindsTheSameRowAfterARebuild) {
  shown_outline o("1+(2 3) 4 5(6)");
  visible_rows& rows = o.rows;
  const row_mark on_four(rows, 3);
  const row_mark on_three(rows, 2);
  const row_mark none(rows, -1);
  const row_mark beyond(rows, 99);
  EXPECT_EQ(on_four.find_in(rows), 3u);
  // Row 1 collapses, row 5 expands: row 4 moves up, row 3 is no longer shown.
  o.outline.row(1).expanded = false;
  o.outline.row(5).expanded = true;
  rows.rebuild(o.selected);
  EXPECT_EQ(on_four.find_in(rows), 1u);
  EXPECT_EQ(on_three.find_in(rows), std::nullopt);
  EXPECT_EQ(none.find_in(rows), std::nullopt);
  EXPECT_EQ(beyond.find_in(rows), std::nullopt);
}

}  // namespace
}  // namespace tx::test
