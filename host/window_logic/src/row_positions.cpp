#include "tx_host/window_logic/row_positions.h"

namespace tx::host::window_logic {

std::size_t row_splice::moved(std::size_t position) const noexcept {
  if (position <= at) return position;
  if (position <= at + removed) return at;
  return position - removed + inserted;
}

std::vector<std::size_t> row_splice::selection(
    std::span<const std::size_t> selected, std::span<const std::size_t> selected_inserted) const {
  std::vector<std::size_t> wanted;
  wanted.reserve(selected.size() + selected_inserted.size());
  for (const std::size_t s : selected) {
    if (s <= at) wanted.push_back(s);
  }
  wanted.insert(wanted.end(), selected_inserted.begin(), selected_inserted.end());
  for (const std::size_t s : selected) {
    if (s > at + removed) wanted.push_back(moved(s));
  }
  return wanted;
}

std::vector<selection_change> selection_changes(std::span<const std::size_t> now,
                                                std::span<const std::size_t> wanted) {
  std::vector<selection_change> changes;
  auto n = now.begin();
  auto w = wanted.begin();
  while (n != now.end() || w != wanted.end()) {
    if (w == wanted.end() || (n != now.end() && *n < *w)) {
      changes.push_back({*n++, false});
    } else if (n == now.end() || *w < *n) {
      changes.push_back({*w++, true});
    } else {
      ++n, ++w;
    }
  }
  return changes;
}

row_mark::row_mark(const visible_rows& rows, std::ptrdiff_t position) noexcept {
  if (position < 0 || static_cast<std::size_t>(position) >= rows.size()) return;
  around_ = static_cast<std::size_t>(position);
  key_ = rows[around_].key;
}

std::optional<std::size_t> row_mark::find_in(const visible_rows& rows) const noexcept {
  if (!key_) return std::nullopt;
  return rows.find_key(*key_, around_);
}

}  // namespace tx::host::window_logic
