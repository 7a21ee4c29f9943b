// A grid's arithmetic: lines sized to their cells (spans, minimums, empty lines), spare room
// spread to the lines that take it, cells placed with gaps, and cells read for a grid of another
// size clipped or left out rather than placed past the grid's lines.
#include "tx_host/window_logic/grid_tracks.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace tx::test {
namespace {

using namespace host::window_logic;

// The lines as "10 - 36+": each size, '-' for a line without content, '+' when it grows.
std::string sizes(const std::vector<track>& tracks) {
  std::string text;
  for (const track& t : tracks) {
    if (!text.empty()) text += ' ';
    text += t.used ? std::to_string(t.size) + (t.grows ? "+" : "") : "-";
  }
  return text;
}

TEST(GridTracks, LinesFitTheirCells) {
  struct plan_case {
    const char* name;
    std::vector<line_spec> lines;
    std::vector<cell_extent> cells;
    const char* sizes;
    int total;
  };
  const line_spec plain{};
  const plan_case cases[] = {
      {"widest cell",
       {plain, plain, plain},
       {{0, 1, 10}, {1, 1, 20}, {2, 1, 30}, {1, 1, 15}},
       "10 20 30",
       68},
      {"empty line takes no room and no gap",
       {plain, plain, plain},
       {{0, 1, 10}, {2, 1, 30}},
       "10 - 30",
       44},
      {"minimums", {{50}, plain, {7}, {5}}, {{0, 1, 10}, {1, 1, 20}, {3, 1, 9}}, "50 20 - 9", 87},
      {"negative minimum", {{-5}}, {{0, 1, 3}}, "3", 3},
      {"span takes what it lacks",
       {plain, plain},
       {{0, 1, 10}, {1, 1, 20}, {0, 2, 50}},
       "10 36",
       50},
      {"span after single cells",
       {plain, plain},
       {{0, 2, 50}, {0, 1, 10}, {1, 1, 20}},
       "10 36",
       50},
      {"span that fits", {plain, plain}, {{0, 1, 10}, {1, 1, 20}, {0, 2, 20}}, "10 20", 34},
      {"span over an empty line", {plain, plain, plain}, {{0, 1, 10}, {0, 3, 40}}, "10 - 26", 40},
      {"span grows its last line", {plain, plain}, {{0, 2, 8, true}}, "0 4+", 8},
      {"single cell grows", {plain, plain}, {{0, 1, 8, true}, {1, 1, 4}}, "8+ 4", 16},
      {"span clipped to the lines", {plain, plain}, {{1, 3, 30}}, "- 30", 30},
      {"cells outside left out", {plain, plain}, {{2, 1, 30}, {-1, 2, 30}, {5, 1, 9}}, "- -", 0},
      {"span below one", {plain}, {{0, 0, 6}, {0, -2, 7}}, "7", 7},
      {"no lines", {}, {{0, 1, 10}}, "", 0},
      {"beyond any screen",
       {{INT_MAX}, plain},
       {{0, 1, 1}, {1, 1, INT_MAX}},
       "1048576 1048576",
       2097156},
  };
  for (const plan_case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::vector<track> tracks = plan_tracks(c.lines, c.cells, 4);
    EXPECT_EQ(sizes(tracks), c.sizes);
    EXPECT_EQ(total_size(tracks, 4), c.total);
  }
}

TEST(GridTracks, SpareRoomGoesToLinesThatStretchAndGrowElseThatGrow) {
  struct spread_case {
    const char* name;
    std::vector<track> tracks;
    int extra;
    const char* sizes;
  };
  const track fixed{10, true};
  const track grows{10, true, false, true};
  const track stretches{10, true, true};
  const track both{10, true, true, true};
  const spread_case cases[] = {
      {"stretch and grow takes it all", {fixed, both, grows}, 30, "10 40+ 10+"},
      {"else the growing lines share it", {grows, fixed, grows}, 30, "25+ 10 25+"},
      {"stretch alone takes nothing", {stretches, fixed}, 30, "10 10"},
      {"the last takes the remainder", {grows, grows, grows}, 31, "20+ 20+ 21+"},
      {"an empty line takes nothing", {{0, false, true, true}, grows}, 8, "- 18+"},
      {"no spare room", {grows, both}, 0, "10+ 10+"},
      {"too little room", {grows, both}, -12, "10+ 10+"},
  };
  for (const spread_case& c : cases) {
    SCOPED_TRACE(c.name);
    std::vector<track> tracks = c.tracks;
    spread(tracks, c.extra);
    EXPECT_EQ(sizes(tracks), c.sizes);
  }
}

// Two rows, three columns of which the middle holds only a hidden cell, a cell spanning the
// second row; gaps of 4 across and 2 down.
grid_spec two_by_three() { return {{{}, {}, {}}, {{}, {}}, 4, 2}; }
const std::vector<grid_cell> kTwoByThreeCells = {
    {0, 0, 1, 1, 10, 5},
    {0, 1, 1, 1, 0, 0},
    {0, 2, 1, 1, 30, 6},
    {1, 0, 1, 3, 60, 8, true, true},
};

TEST(GridTracks, AGridAsksForItsLinesAndGaps) {
  const grid_request r = request_grid(two_by_three(), kTwoByThreeCells);
  EXPECT_EQ(r.width, 60);   // 10, no middle column, 4, 46 (what the span lacks)
  EXPECT_EQ(r.height, 16);  // 6, 2, 8
  EXPECT_TRUE(r.grows_across);
  EXPECT_TRUE(r.grows_down);
  const grid_request fixed = request_grid(two_by_three(), std::span(kTwoByThreeCells).first(3));
  EXPECT_EQ(fixed.width, 44);
  EXPECT_EQ(fixed.height, 6);
  EXPECT_FALSE(fixed.grows_across || fixed.grows_down);
}

TEST(GridTracks, CellsArePlacedOnTheirLinesWithGaps) {
  // 20 pixels more across and 4 more down than asked for: the growing column and row take them.
  const std::vector<std::optional<box>> placed =
      arrange_grid(two_by_three(), kTwoByThreeCells, {100, 50, 180, 70});
  const std::optional<box> expected[] = {
      box{100, 50, 110, 56},
      box{110, 50, 110, 56},
      box{114, 50, 180, 56},
      box{100, 58, 180, 70},
  };
  ASSERT_EQ(placed.size(), std::size(expected));
  for (std::size_t i = 0; i < placed.size(); ++i) {
    SCOPED_TRACE(i);
    ASSERT_EQ(placed[i].has_value(), expected[i].has_value());
    EXPECT_EQ(placed[i]->left, expected[i]->left);
    EXPECT_EQ(placed[i]->top, expected[i]->top);
    EXPECT_EQ(placed[i]->right, expected[i]->right);
    EXPECT_EQ(placed[i]->bottom, expected[i]->bottom);
  }
}

TEST(GridTracks, CellsOfALargerGridAreClippedOrLeftOut) {
  // The cells were read when the grid had three columns and two rows; it now has one of each.
  const grid_spec shrunk{{{}}, {{}}, 4, 2};
  const std::vector<grid_cell> cells = {
      {0, 0, 1, 1, 10, 5}, {0, 2, 1, 1, 30, 6}, {1, 0, 1, 3, 60, 8, true, true},
      {0, 0, 2, 3, 12, 7}, {-1, 0, 1, 1, 5, 5}, {0, -3, 1, 9, 5, 5},
  };
  const grid_request r = request_grid(shrunk, cells);
  EXPECT_EQ(r.width, 12);
  EXPECT_EQ(r.height, 7);
  const std::vector<std::optional<box>> placed = arrange_grid(shrunk, cells, {0, 0, 40, 30});
  ASSERT_EQ(placed.size(), cells.size());
  for (const std::size_t left_out : {1, 2, 4, 5}) EXPECT_FALSE(placed[left_out]) << left_out;
  for (const std::size_t clipped : {0, 3}) {
    ASSERT_TRUE(placed[clipped]) << clipped;
    EXPECT_EQ(placed[clipped]->right, 12);
    EXPECT_EQ(placed[clipped]->bottom, 7);
  }
}

TEST(GridTracks, CoveredLinesAreClippedToTheGrid) {
  struct range_case {
    int first;
    int span;
    std::size_t count;
    std::optional<std::pair<std::size_t, std::size_t>> lines;
  };
  const range_case cases[] = {
      {0, 1, 3, std::pair{0u, 1u}}, {1, 2, 3, std::pair{1u, 3u}}, {1, 5, 3, std::pair{1u, 3u}},
      {2, 0, 3, std::pair{2u, 3u}}, {3, 1, 3, std::nullopt},      {-1, 3, 3, std::nullopt},
      {0, 1, 0, std::nullopt},
  };
  for (const range_case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.first << "+" << c.span << " of " << c.count);
    const std::optional<line_range> got = covered_lines(c.first, c.span, c.count);
    ASSERT_EQ(got.has_value(), c.lines.has_value());
    if (got) {
      EXPECT_EQ(std::pair(got->first, got->end), *c.lines);
    }
  }
}

}  // namespace
}  // namespace tx::test
