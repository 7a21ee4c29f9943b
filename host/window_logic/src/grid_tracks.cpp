#include "tx_host/window_logic/grid_tracks.h"

#include <algorithm>

namespace tx::host::window_logic {
namespace {

// Far more than any screen: a line or a cell that asks for more is given this much, so that the
// sums over a grid's lines stay inside an int.
constexpr int kMaxExtent = 1 << 20;

// Fits one cell into the lines it covers: the first and the last hold content from now on, the
// last grows with it and takes what the covered lines still lack.
void fit(std::span<track> tracks, const line_range& lines, const cell_extent& cell, int gap) {
  track& last = tracks[lines.end - 1];
  tracks[lines.first].used = true;
  last.used = true;
  last.grows = last.grows || cell.grows;
  const int lacking = std::min(cell.need, kMaxExtent) -
                      total_size(tracks.subspan(lines.first, lines.end - lines.first), gap);
  if (lacking > 0) last.size += lacking;
}

template <class Takes>
std::vector<track*> lines_that(std::span<track> tracks, Takes&& takes) {
  std::vector<track*> chosen;
  for (track& t : tracks) {
    if (t.used && takes(t)) chosen.push_back(&t);
  }
  return chosen;
}

// The cells that hold content and start inside the grid, along each axis: a cell left out along
// one axis is left out along the other too.
struct extents {
  std::vector<cell_extent> across;
  std::vector<cell_extent> down;
};

extents extents_of(const grid_spec& grid, std::span<const grid_cell> cells) {
  extents e;
  for (const grid_cell& c : cells) {
    if (c.width == 0 && c.height == 0) continue;
    if (!covered_lines(c.column, c.column_span, grid.columns.size()) ||
        !covered_lines(c.row, c.row_span, grid.rows.size())) {
      continue;
    }
    e.across.push_back({c.column, c.column_span, c.width, c.grows_across});
    e.down.push_back({c.row, c.row_span, c.height, c.grows_down});
  }
  return e;
}

}  // namespace

std::optional<line_range> covered_lines(int first, int span, std::size_t count) noexcept {
  if (first < 0 || static_cast<std::size_t>(first) >= count) return std::nullopt;
  const std::size_t start = static_cast<std::size_t>(first);
  const std::size_t wanted = static_cast<std::size_t>(std::max(span, 1));
  return line_range{start, start + std::min(wanted, count - start)};
}

std::vector<track> plan_tracks(std::span<const line_spec> lines, std::span<const cell_extent> cells,
                               int gap) {
  std::vector<track> tracks(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    tracks[i].size = std::clamp(lines[i].minimum, 0, kMaxExtent);
    tracks[i].stretch = lines[i].stretch;
  }
  // Single cells first, so that a spanning cell only adds what they leave lacking.
  for (const bool spanning : {false, true}) {
    for (const cell_extent& cell : cells) {
      const std::optional<line_range> covered = covered_lines(cell.first, cell.span, tracks.size());
      if (!covered || (covered->end - covered->first > 1) != spanning) continue;
      fit(tracks, *covered, cell, gap);
    }
  }
  return tracks;
}

int total_size(std::span<const track> tracks, int gap) noexcept {
  int sum = 0;
  int used = 0;
  for (const track& t : tracks) {
    if (!t.used) continue;
    sum += t.size;
    ++used;
  }
  return sum + (used > 1 ? gap * (used - 1) : 0);
}

void spread(std::span<track> tracks, int extra) {
  if (extra <= 0) return;
  std::vector<track*> chosen =
      lines_that(tracks, [](const track& t) { return t.stretch && t.grows; });
  if (chosen.empty()) chosen = lines_that(tracks, [](const track& t) { return t.grows; });
  if (chosen.empty()) return;
  const int each = extra / static_cast<int>(chosen.size());
  for (track* t : chosen) t->size += each;
  chosen.back()->size += extra - each * static_cast<int>(chosen.size());
}

std::vector<edges> line_edges(std::span<const track> tracks, int origin, int gap) {
  std::vector<edges> at(tracks.size());
  int x = origin;
  bool any = false;
  for (std::size_t i = 0; i < tracks.size(); ++i) {
    if (tracks[i].used && any) x += gap;
    at[i].start = x;
    if (tracks[i].used) {
      x += tracks[i].size;
      any = true;
    }
    at[i].end = x;
  }
  return at;
}

grid_plan plan_grid(const grid_spec& grid, std::span<const grid_cell> cells) {
  const extents e = extents_of(grid, cells);
  return {plan_tracks(grid.columns, e.across, grid.gap_x),
          plan_tracks(grid.rows, e.down, grid.gap_y)};
}

grid_request request_grid(const grid_spec& grid, std::span<const grid_cell> cells) {
  const grid_plan plan = plan_grid(grid, cells);
  const auto grows = [](const track& t) { return t.grows; };
  return {total_size(plan.columns, grid.gap_x), total_size(plan.rows, grid.gap_y),
          std::any_of(plan.columns.begin(), plan.columns.end(), grows),
          std::any_of(plan.rows.begin(), plan.rows.end(), grows)};
}

std::vector<std::optional<box>> arrange_grid(const grid_spec& grid,
                                             std::span<const grid_cell> cells, const box& area) {
  grid_plan plan = plan_grid(grid, cells);
  spread(plan.columns, (area.right - area.left) - total_size(plan.columns, grid.gap_x));
  spread(plan.rows, (area.bottom - area.top) - total_size(plan.rows, grid.gap_y));
  const std::vector<edges> xs = line_edges(plan.columns, area.left, grid.gap_x);
  const std::vector<edges> ys = line_edges(plan.rows, area.top, grid.gap_y);
  std::vector<std::optional<box>> placed;
  placed.reserve(cells.size());
  for (const grid_cell& c : cells) {
    const std::optional<line_range> columns = covered_lines(c.column, c.column_span, xs.size());
    const std::optional<line_range> rows = covered_lines(c.row, c.row_span, ys.size());
    if (!columns || !rows) {
      placed.emplace_back();
      continue;
    }
    placed.push_back(box{xs[columns->first].start, ys[rows->first].start, xs[columns->end - 1].end,
                         ys[rows->end - 1].end});
  }
  return placed;
}

}  // namespace tx::host::window_logic
