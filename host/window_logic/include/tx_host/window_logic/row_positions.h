// How the list's positions follow the shown rows when they change: through a splice (one row's
// subtree put in or taken out after it) the selection, the focus and the anchor of a range
// selection move with their rows; through a rebuild (every row read afresh) they are found again
// by the rows' keys. The window only applies what these answer to its list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "tx_host/window_logic/visible_rows.h"

namespace tx::host::window_logic {

// One row's subtree spliced in (expanded) or out (collapsed) after position `at`.
struct row_splice {
  std::size_t at = 0;
  std::size_t removed = 0;   // rows taken out after `at`
  std::size_t inserted = 0;  // rows put in after `at`

  // Where a mark (the focus, the anchor) at `position` stands afterwards: on or before the row
  // it stays, on a row taken out it goes to the row, after them it moves by the rows spliced.
  std::size_t moved(std::size_t position) const noexcept;
  // The selected positions afterwards (ascending), from those before (`selected`, ascending)
  // and the selected rows put in (`selected_inserted`, positions after the splice): a selected
  // row moves with its row, and one taken out is no longer selected.
  std::vector<std::size_t> selection(std::span<const std::size_t> selected,
                                     std::span<const std::size_t> selected_inserted) const;
};

// One position whose selection the list must change.
struct selection_change {
  std::size_t position = 0;
  bool selected = false;
};
// What turns the selection `now` into `wanted` (both ascending), in ascending positions.
std::vector<selection_change> selection_changes(std::span<const std::size_t> now,
                                                std::span<const std::size_t> wanted);

// A list position remembered by the key of the row under it, to find the same row after the rows
// are read afresh.
class row_mark {
 public:
  // No mark for a position outside the rows (a list answers -1 for none).
  row_mark(const visible_rows& rows, std::ptrdiff_t position) noexcept;
  // Where the same row stands in `rows` now, looked for from the old position; nothing when it is
  // no longer shown or there was no mark.
  std::optional<std::size_t> find_in(const visible_rows& rows) const noexcept;

 private:
  std::optional<std::uint64_t> key_;
  std::size_t around_ = 0;
};

}  // namespace tx::host::window_logic
