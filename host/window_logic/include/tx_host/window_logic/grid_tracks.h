// The arithmetic of a grid layout over plain values: the columns' widths and the rows' heights
// from the cells' requests, the spare room spread over them and where each cell then lies. Each
// column (row) is as wide (high) as its widest (highest) cell and at least its minimum; a cell
// that spans several lines makes the last line it covers take what the others lack, after the
// single cells have been fitted; lines without content take no room and no gap. Spare room goes
// to the lines that stretch and hold content that grows, else to the lines whose content grows,
// else nowhere; the last of them takes what does not divide evenly.
//
// A cell that lies partly outside the grid's lines is clipped to them, one that starts outside is
// left out: the cells may have been read for a grid of another size than the lines. A minimum or
// a request beyond any screen's size counts as a million pixels.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tx::host::window_logic {

// A column or a row as its grid sets it.
struct line_spec {
  int minimum = 0;       // pixels; 0 for none
  bool stretch = false;  // takes spare room (when its content grows)
};

// A grid's lines and the gaps between lines that hold content, in pixels.
struct grid_spec {
  std::vector<line_spec> columns;
  std::vector<line_spec> rows;
  int gap_x = 0;
  int gap_y = 0;
};

// One cell: where it stands, the lines it covers and what its content asks. A cell that asks
// for no room at all (a hidden control) holds no content.
struct grid_cell {
  int row = 0;
  int column = 0;
  int row_span = 1;
  int column_span = 1;
  int width = 0;
  int height = 0;
  bool grows_across = false;
  bool grows_down = false;
};

// A column or a row as planned.
struct track {
  int size = 0;
  bool used = false;  // holds content: takes its size and a gap
  bool stretch = false;
  bool grows = false;
};

// What a cell asks of one axis: its first line, how many it covers, the room it needs.
struct cell_extent {
  int first = 0;
  int span = 1;
  int need = 0;
  bool grows = false;
};

// Where a line or a cell starts and ends along one axis.
struct edges {
  int start = 0;
  int end = 0;
};

// The lines a cell covers, clipped to `count` lines: first and one past the last; nothing when
// the cell starts outside them. A span below 1 counts as 1.
struct line_range {
  std::size_t first = 0;
  std::size_t end = 0;
};
std::optional<line_range> covered_lines(int first, int span, std::size_t count) noexcept;

// One axis: the lines sized to the cells, single cells first.
std::vector<track> plan_tracks(std::span<const line_spec> lines, std::span<const cell_extent> cells,
                               int gap);
// The room the lines take with the gaps between those that hold content.
int total_size(std::span<const track> tracks, int gap) noexcept;
// Spreads `extra` pixels over the lines that take spare room; nothing when `extra` is not above 0.
void spread(std::span<track> tracks, int extra);
// Each line's edges, from `origin`, with `gap` before every line with content but the first.
std::vector<edges> line_edges(std::span<const track> tracks, int origin, int gap);

// Both axes of a grid.
struct grid_plan {
  std::vector<track> columns;
  std::vector<track> rows;
};
grid_plan plan_grid(const grid_spec& grid, std::span<const grid_cell> cells);

// What a grid asks of its parent: its size and whether it grows either way.
struct grid_request {
  int width = 0;
  int height = 0;
  bool grows_across = false;
  bool grows_down = false;
};
grid_request request_grid(const grid_spec& grid, std::span<const grid_cell> cells);

// A rectangle in pixels, right and bottom exclusive.
struct box {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};
// Where each cell lies when the grid fills `area`, in the cells' order; nothing for a cell left
// out (it starts outside the grid's lines).
std::vector<std::optional<box>> arrange_grid(const grid_spec& grid,
                                             std::span<const grid_cell> cells, const box& area);

}  // namespace tx::host::window_logic
