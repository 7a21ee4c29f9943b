// The host's reading of an outline element: its text columns and check boxes, and its rows,
// asked live from the plug-in (the host keeps no row of its own). A row pair is valid until the
// outline tells its view that the rows changed, so a reader's rows are used within one command.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tx/abi.h"
#include "tx_host/dialog/refusal.h"
#include "tx_host/dialog/row_format.h"

namespace tx::host::dialog {

class outline_reader {
 public:
  // `outline`: a tx_outline_interface_32 pair.
  explicit outline_reader(tx_custom_pointer outline);

  tx_custom_pointer outline() const noexcept { return outline_; }
  // The text columns (tx_string_outline_column_interface_10 pairs), in display order.
  const std::vector<tx_custom_pointer>& columns() const noexcept { return columns_; }
  // The check boxes (tx_outline_checks_interface_1); the null pair when the rows have none.
  tx_custom_pointer checks() const noexcept { return checks_; }

  // The children of `parent` (the null pair: the top-level rows).
  std::int32_t row_count(tx_custom_pointer parent) const noexcept;
  tx_custom_pointer row(tx_custom_pointer parent, std::int32_t index) const noexcept;

  // The row's text in the first column: what names the row in a script.
  std::string caption(tx_custom_pointer row) const;
  // A cell's and a column header's text, in UTF-8; nothing when there is none.
  std::optional<std::string> cell(std::size_t column, tx_custom_pointer row) const;
  std::optional<std::string> header(std::size_t column) const;
  // The same in UTF-16, as a native list shows them.
  std::optional<std::u16string> wide_cell(std::size_t column, tx_custom_pointer row) const;
  std::optional<std::u16string> wide_header(std::size_t column) const;

  bool selected(tx_custom_pointer row) const noexcept;
  bool expanded(tx_custom_pointer row) const noexcept;
  bool faulty(tx_custom_pointer row) const noexcept;
  bool checked(tx_custom_pointer row) const noexcept;
  bool check_enabled(tx_custom_pointer row) const noexcept;
  bool editable(std::size_t column, tx_custom_pointer row) const noexcept;
  bool emphasized(std::size_t column, tx_custom_pointer row) const noexcept;
  // Whether the row has rows under it and whether they are shown.
  row_expander expander(tx_custom_pointer row) const noexcept;
  // The first column whose cell in `row` the user may edit; nothing when none.
  std::optional<std::size_t> first_editable(tx_custom_pointer row) const noexcept;

 private:
  tx_custom_pointer outline_;
  std::vector<tx_custom_pointer> columns_;
  tx_custom_pointer checks_{};
};

// A row found by a script's address, with the rows above it (top-level row first).
struct found_row {
  tx_custom_pointer row{};
  std::vector<tx_custom_pointer> ancestors;
  // Why no row was found; nothing when `row` is set.
  std::optional<refusal> refused;
};

// The row at `address`: a path of first-column captions from a top-level row joined by " / "
// (a step may be written {N}: the N-th row at that level), or else the caption of exactly one
// row anywhere. The row must be shown: a row under a collapsed row is an error, as the user
// cannot reach it.
found_row find_row(const outline_reader& reader, std::string_view address);

// The shown rows as text lines (without a line break), header first: each row with its
// markers ('>' selected, '!' faulty), its indentation, an expander ('▾' expanded, '▸'
// collapsed), its check box ("[x]", "[ ]"; "(x)", "( )" when the user cannot change it) and
// its cells; an emphasized cell ends with " *". Columns are aligned.
std::vector<std::string> render_rows(const outline_reader& reader);

}  // namespace tx::host::dialog
