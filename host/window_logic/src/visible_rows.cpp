#include "tx_host/window_logic/visible_rows.h"

#include "tx/toolkit/outline.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::window_logic {
namespace {

using outline_table = tx_outline_interface_32;

// Deeper than any project's tree: a row that is its own descendant stops here.
constexpr std::int32_t kMaxDepth = 256;
// Far more rows than any project shows (sixteen times the largest one timed): an outline that
// answers absurd counts is shown this far, not until memory runs out.
constexpr std::size_t kMaxRows = std::size_t{1} << 24;

}  // namespace

void visible_rows::append(tx_custom_pointer parent, std::int32_t depth,
                          std::vector<visible_row>& out, std::vector<std::size_t>& selected,
                          std::size_t base) {
  if (depth >= kMaxDepth) return;
  const std::int32_t count = call(outline_, &outline_table::row_count, parent);
  for (std::int32_t i = 0; i < count && base + out.size() < kMaxRows; ++i) {
    const tx_custom_pointer row = call(outline_, &outline_table::row, parent, i);
    const std::uint64_t key = call(row, &tx_outline_item_interface_0::key);
    if (call(outline_, &outline_table::selected, row)) selected.push_back(base + out.size());
    out.push_back({row, key, depth});
    if (call(outline_, &outline_table::expanded, row)) append(row, depth + 1, out, selected, base);
  }
}

void visible_rows::rebuild(std::vector<std::size_t>& selected) {
  rows_.clear();
  append(tx_custom_pointer{}, 0, rows_, selected, 0);
}

std::size_t visible_rows::expand(std::size_t at, std::vector<std::size_t>& selected) {
  if (at >= rows_.size()) return 0;
  std::vector<visible_row> under;
  append(rows_[at].row, rows_[at].depth + 1, under, selected, at + 1);
  rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(at + 1), under.begin(), under.end());
  return under.size();
}

std::size_t visible_rows::collapse(std::size_t at) {
  if (at >= rows_.size()) return 0;
  const std::size_t end = subtree_end(at);
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(at + 1),
              rows_.begin() + static_cast<std::ptrdiff_t>(end));
  return end - at - 1;
}

std::size_t visible_rows::subtree_end(std::size_t at) const noexcept {
  std::size_t end = at + 1;
  while (end < rows_.size() && rows_[end].depth > rows_[at].depth) ++end;
  return end;
}

std::optional<std::size_t> visible_rows::parent(std::size_t at) const noexcept {
  if (at >= rows_.size()) return std::nullopt;
  for (std::size_t i = at; i-- > 0;) {
    if (rows_[i].depth < rows_[at].depth) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> visible_rows::find_key(std::uint64_t key,
                                                  std::size_t around) const noexcept {
  const std::size_t n = rows_.size();
  if (n == 0) return std::nullopt;
  if (around >= n) around = n - 1;
  for (std::size_t d = 0; d < n; ++d) {
    if (around + d < n && rows_[around + d].key == key) return around + d;
    if (d > 0 && d <= around && rows_[around - d].key == key) return around - d;
    if (around + d >= n && d > around) break;
  }
  return std::nullopt;
}

std::optional<std::size_t> visible_rows::find(tx_custom_pointer row) const noexcept {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (same(rows_[i].row, row)) return i;
  }
  return std::nullopt;
}

}  // namespace tx::host::window_logic
