#include "window_layout.h"

#include <algorithm>

#include "native.h"
#include "tx/toolkit/layout.h"

namespace tx::host::gui {
namespace {

using dialog::element_kind;

// More cells than any real grid.
constexpr std::int32_t kMaxLines = 64;
constexpr int kGap = layout_gap;
// A group box's insets: its caption above the content.
constexpr int kGroupTop = 11;
constexpr int kGroupSide = 6;
constexpr int kGroupBottom = 6;

struct track {
  int size = 0;
  bool used = false;
  bool stretch = false;
  bool grows = false;
};

int total(const std::vector<track>& tracks, int gap) {
  int sum = 0;
  int used = 0;
  for (const track& t : tracks) {
    if (!t.used) continue;
    sum += t.size;
    ++used;
  }
  return sum + (used > 1 ? gap * (used - 1) : 0);
}

// Spreads `extra` over the tracks that take it: those that stretch and hold content that
// grows, else those whose content grows, else nothing.
void spread(std::vector<track>& tracks, int extra) {
  if (extra <= 0) return;
  auto pick = [&](auto&& takes) {
    std::vector<track*> chosen;
    for (track& t : tracks) {
      if (t.used && takes(t)) chosen.push_back(&t);
    }
    return chosen;
  };
  std::vector<track*> chosen = pick([](const track& t) { return t.stretch && t.grows; });
  if (chosen.empty()) chosen = pick([](const track& t) { return t.grows; });
  if (chosen.empty()) return;
  const int each = extra / static_cast<int>(chosen.size());
  for (track* t : chosen) t->size += each;
  chosen.back()->size += extra - each * static_cast<int>(chosen.size());
}

// A grid's columns and rows: each as wide (high) as its widest (highest) cell; a cell that
// spans makes the last line it covers take what the others lack. Lines without content take
// no room and no gap.
void plan_grid(const window_node& node, const std::vector<size_request>& requests, const metrics& m,
               std::vector<track>& across, std::vector<track>& down) {
  using table = tx_grid_layout_interface_91;
  const tx_custom_pointer pair = node.element.pair;
  const std::int32_t rows = std::clamp(call(pair, &table::row_count), 0, kMaxLines);
  const std::int32_t columns = std::clamp(call(pair, &table::column_count), 0, kMaxLines);
  across.assign(static_cast<std::size_t>(columns), track{});
  down.assign(static_cast<std::size_t>(rows), track{});
  for (std::int32_t c = 0; c < columns; ++c) {
    track& t = across[static_cast<std::size_t>(c)];
    t.stretch = call(pair, &table::column_stretch, c);
    t.size = std::max<int>(0, call(pair, &table::column_minimum, c));
  }
  for (std::int32_t r = 0; r < rows; ++r) {
    track& t = down[static_cast<std::size_t>(r)];
    t.stretch = call(pair, &table::row_stretch, r);
    t.size = std::max<int>(0, call(pair, &table::row_minimum, r));
  }
  const int gap_x = m.dlu_x(kGap);
  const int gap_y = m.dlu_y(kGap);
  auto fit_line = [](std::vector<track>& tracks, int first, int span, int need, bool grows,
                     int gap) {
    track& last = tracks[static_cast<std::size_t>(first + span - 1)];
    tracks[static_cast<std::size_t>(first)].used = true;
    last.used = true;
    last.grows = last.grows || grows;
    const std::vector<track> covered(tracks.begin() + first, tracks.begin() + first + span);
    const int lacking = need - total(covered, gap);
    if (lacking > 0) last.size += lacking;
  };
  // Single cells first, so that a spanning cell only adds what they leave lacking.
  for (int pass = 0; pass < 2; ++pass) {
    for (std::size_t i = 0; i < node.children.size(); ++i) {
      const window_node& child = *node.children[i];
      const size_request& r = requests[i];
      if (r.width == 0 && r.height == 0) continue;
      const bool spans = child.column_span > 1 || child.row_span > 1;
      if ((pass == 0) == spans) continue;
      fit_line(across, child.column, child.column_span, r.width, r.grows_across, gap_x);
      fit_line(down, child.row, child.row_span, r.height, r.grows_down, gap_y);
    }
  }
}

struct edges {
  int start = 0;
  int end = 0;
};

// Where each line starts and ends, from `origin`, with `gap` between lines that hold content.
std::vector<edges> positions(const std::vector<track>& tracks, int origin, int gap) {
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

}  // namespace

window_node::~window_node() {
  children.clear();
  leaf.reset();
  if (frame != nullptr) DestroyWindow(frame);
}

size_request request(const window_node& node, const metrics& m) {
  if (!node.shown) return {};
  if (node.leaf) return node.leaf->request(m);
  switch (node.element.kind) {
    case element_kind::groupbox: {
      size_request inner = node.children.empty() ? size_request{} : request(*node.children[0], m);
      inner.width = std::max(inner.width + 2 * m.dlu_x(kGroupSide),
                             text_width(m, window_text(node.frame)) + m.dlu_x(2 * kGroupSide + 4));
      inner.height += m.dlu_y(kGroupTop) + m.dlu_y(kGroupBottom);
      return inner;
    }
    case element_kind::grid:
      break;
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
  std::vector<size_request> requests;
  for (const auto& child : node.children) requests.push_back(request(*child, m));
  std::vector<track> across;
  std::vector<track> down;
  plan_grid(node, requests, m, across, down);
  size_request result;
  for (const track& t : across) result.grows_across = result.grows_across || t.grows;
  for (const track& t : down) result.grows_down = result.grows_down || t.grows;
  result.width = total(across, m.dlu_x(kGap));
  result.height = total(down, m.dlu_y(kGap));
  return result;
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
  switch (node.element.kind) {
    case element_kind::groupbox: {
      const size_request r = request(node, m);
      RECT frame = area;
      if (!r.grows_down) frame.bottom = std::min<LONG>(frame.bottom, frame.top + r.height);
      MoveWindow(node.frame, frame.left, frame.top, frame.right - frame.left,
                 frame.bottom - frame.top, TRUE);
      const RECT inner{frame.left + m.dlu_x(kGroupSide), frame.top + m.dlu_y(kGroupTop),
                       frame.right - m.dlu_x(kGroupSide), frame.bottom - m.dlu_y(kGroupBottom)};
      for (const auto& child : node.children) place(*child, inner, m);
      return;
    }
    case element_kind::grid:
      break;
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
  // A grid: the tracks of its request, then the spare room spread over them.
  std::vector<size_request> requests;
  for (const auto& child : node.children) requests.push_back(request(*child, m));
  std::vector<track> across;
  std::vector<track> down;
  plan_grid(node, requests, m, across, down);
  const int gap_x = m.dlu_x(kGap);
  const int gap_y = m.dlu_y(kGap);
  spread(across, (area.right - area.left) - total(across, gap_x));
  spread(down, (area.bottom - area.top) - total(down, gap_y));
  const std::vector<edges> xs = positions(across, area.left, gap_x);
  const std::vector<edges> ys = positions(down, area.top, gap_y);
  for (const auto& child : node.children) {
    const auto c = static_cast<std::size_t>(child->column);
    const auto r = static_cast<std::size_t>(child->row);
    const RECT cell{xs[c].start, ys[r].start,
                    xs[c + static_cast<std::size_t>(child->column_span) - 1].end,
                    ys[r + static_cast<std::size_t>(child->row_span) - 1].end};
    place(*child, cell, m);
  }
}

}  // namespace tx::host::gui
