#include "window_layout.h"

#include <algorithm>

#include "native.h"
#include "tx_host/window_logic/grid_tracks.h"

namespace tx::host::gui {
namespace {

using dialog::element_kind;

constexpr int kGap = layout_gap;
// A group box's insets: its caption above the content.
constexpr int kGroupTop = 11;
constexpr int kGroupSide = 6;
constexpr int kGroupBottom = 6;

// A grid's lines as its description has them, with the gaps between them: the layout sizes
// and places a grid by the same lines its cells were built for.
window_logic::grid_spec grid_lines(const window_node& node, const metrics& m) {
  window_logic::grid_spec grid;
  for (const dialog::grid_line& c : node.described.columns) {
    grid.columns.push_back({c.minimum, c.stretch});
  }
  for (const dialog::grid_line& r : node.described.rows)
    grid.rows.push_back({r.minimum, r.stretch});
  grid.gap_x = m.dlu_x(kGap);
  grid.gap_y = m.dlu_y(kGap);
  return grid;
}

// The grid's cells: where each child stands and what it asks for.
std::vector<window_logic::grid_cell> grid_cells(const window_node& node, const metrics& m) {
  std::vector<window_logic::grid_cell> cells;
  cells.reserve(node.children.size());
  for (const auto& child : node.children) {
    const size_request r = request(*child, m);
    const dialog::grid_cell& at = child->described.cell;
    cells.push_back({at.row, at.column, at.row_span, at.column_span, r.width, r.height,
                     r.grows_across, r.grows_down});
  }
  return cells;
}

}  // namespace

size_request request(const window_node& node, const metrics& m) {
  if (!node.shown) return {};
  if (node.leaf) return node.leaf->request(m);
  switch (node.element().kind) {
    case element_kind::groupbox: {
      size_request inner = node.children.empty() ? size_request{} : request(*node.children[0], m);
      inner.width =
          std::max(inner.width + 2 * m.dlu_x(kGroupSide),
                   text_width(m, window_text(node.frame.get())) + m.dlu_x(2 * kGroupSide + 4));
      inner.height += m.dlu_y(kGroupTop) + m.dlu_y(kGroupBottom);
      return inner;
    }
    case element_kind::grid: {
      const window_logic::grid_request r =
          window_logic::request_grid(grid_lines(node, m), grid_cells(node, m));
      return {r.width, r.height, r.grows_across, r.grows_down};
    }
    default: {
      // A stack's shown entry, the docker's content: one below the other.
      size_request all;
      for (const auto& child : node.children) {
        const size_request r = request(*child, m);
        all.width = std::max(all.width, r.width);
        all.height += r.height;
        all.grows_across = all.grows_across || r.grows_across;
        all.grows_down = all.grows_down || r.grows_down;
      }
      return all;
    }
  }
}

void place(window_node& node, const RECT& area, const metrics& m) {
  if (!node.shown) return;
  if (node.leaf) {
    const size_request r = node.leaf->request(m);
    RECT cell = area;
    if (!r.grows_down) cell.bottom = std::min<LONG>(cell.bottom, cell.top + r.height);
    if (!r.grows_across) cell.right = std::min<LONG>(cell.right, cell.left + r.width);
    node.leaf->place(cell);
    return;
  }
  switch (node.element().kind) {
    case element_kind::groupbox: {
      const size_request r = request(node, m);
      RECT frame = area;
      if (!r.grows_down) frame.bottom = std::min<LONG>(frame.bottom, frame.top + r.height);
      MoveWindow(node.frame.get(), frame.left, frame.top, frame.right - frame.left,
                 frame.bottom - frame.top, TRUE);
      const RECT inner{frame.left + m.dlu_x(kGroupSide), frame.top + m.dlu_y(kGroupTop),
                       frame.right - m.dlu_x(kGroupSide), frame.bottom - m.dlu_y(kGroupBottom)};
      for (const auto& child : node.children) place(*child, inner, m);
      return;
    }
    case element_kind::grid: {
      // The cells of a grid that shrank without telling lie outside its lines: they stay put.
      const std::vector<std::optional<window_logic::box>> cells =
          window_logic::arrange_grid(grid_lines(node, m), grid_cells(node, m),
                                     {static_cast<int>(area.left), static_cast<int>(area.top),
                                      static_cast<int>(area.right), static_cast<int>(area.bottom)});
      for (std::size_t i = 0; i < node.children.size() && i < cells.size(); ++i) {
        if (const auto& b = cells[i])
          place(*node.children[i], RECT{b->left, b->top, b->right, b->bottom}, m);
      }
      return;
    }
    default: {
      int top = area.top;
      for (const auto& child : node.children) {
        const size_request r = request(*child, m);
        const int height = r.grows_down ? area.bottom - top : r.height;
        place(*child, RECT{area.left, top, area.right, top + height}, m);
        top += height;
      }
      return;
    }
  }
}

}  // namespace tx::host::gui
