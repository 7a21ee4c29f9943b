// The outline's rows as the text host prints them, from plain values: what the element reader
// asks the plug-in and what the window's list shows go through this one formatting, so both
// hosts print a dialog byte for byte alike.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tx::host::dialog {

enum class row_expander { none, collapsed, expanded };

// A row's tick box: ticked or not, and whether the user may change it.
struct row_box {
  bool ticked = false;
  bool enabled = true;
};

struct row_cell {
  std::string text;  // UTF-8; empty for an empty cell
  bool emphasized = false;
};

// One shown row.
struct row_values {
  bool selected = false;
  bool faulty = false;
  std::size_t depth = 0;  // 0 for a top-level row
  row_expander expander = row_expander::none;
  std::optional<row_box> box;   // nothing when the rows have no boxes
  std::vector<row_cell> cells;  // one per text column, in display order
};

// The header line (when any column has a header) and one line a row, without line breaks: each
// row with its markers ('>' selected, '!' faulty), its indentation, an expander ('▾' expanded,
// '▸' collapsed), its box ("[x]", "[ ]"; "(x)", "( )" when the user cannot change it) and its
// cells, " │ " between them; an emphasized cell ends with " *". Cells are padded to their
// column's widest, trailing blanks dropped. `headers` has one entry per text column.
std::vector<std::string> format_rows(const std::vector<std::optional<std::string>>& headers,
                                     bool boxes, const std::vector<row_values>& rows);

}  // namespace tx::host::dialog
