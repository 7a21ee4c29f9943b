// The rows an outline shows, flattened in display order with their depth: what a virtual list
// needs to answer "row N" in constant time. Rebuilt in one walk when the plug-in redraws (its row
// pairs are then no longer valid); expanding or collapsing one row splices that row's subtree in
// or out, in time linear in the rows shown. The outline is read through its interface only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "tx/abi.h"

namespace tx::host::window_logic {

struct visible_row {
  tx_custom_pointer row{};  // valid until the outline tells that its rows changed
  std::uint64_t key = 0;    // the row's key: finds the same row again after a rebuild
  std::int32_t depth = 0;   // 0 for a top-level row
};

class visible_rows {
 public:
  // `outline`: a tx_outline_interface_32 pair.
  explicit visible_rows(tx_custom_pointer outline) noexcept : outline_(outline) {}

  // Walks the outline afresh. `selected` receives the positions of the selected rows, in order.
  void rebuild(std::vector<std::size_t>& selected);
  // Splices the rows shown under row `at` (now expanded) in after it; answers how many.
  // `selected` receives the positions of the selected rows among them.
  std::size_t expand(std::size_t at, std::vector<std::size_t>& selected);
  // Takes the rows under row `at` out; answers how many.
  std::size_t collapse(std::size_t at);

  std::size_t size() const noexcept { return rows_.size(); }
  const visible_row& operator[](std::size_t i) const noexcept { return rows_[i]; }

  // The position of the row with `key`, looked for outwards from `around`; nothing if not shown.
  std::optional<std::size_t> find_key(std::uint64_t key, std::size_t around) const noexcept;
  // The position of `row`; nothing if not shown.
  std::optional<std::size_t> find(tx_custom_pointer row) const noexcept;
  // The row above row `at` (its parent); nothing for a top-level row.
  std::optional<std::size_t> parent(std::size_t at) const noexcept;
  // One past the last row under row `at`.
  std::size_t subtree_end(std::size_t at) const noexcept;

 private:
  // Appends the shown rows under `parent` (the null pair: the top level).
  void append(tx_custom_pointer parent, std::int32_t depth, std::vector<visible_row>& out,
              std::vector<std::size_t>& selected, std::size_t base);

  tx_custom_pointer outline_;
  std::vector<visible_row> rows_;
};

}  // namespace tx::host::window_logic
