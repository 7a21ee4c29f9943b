#include "tx_host/dialog/row_format.h"

#include <algorithm>
#include <string_view>

namespace tx::host::dialog {
namespace {

std::size_t display_width(std::string_view utf8) noexcept {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

void pad_to(std::string& text, std::size_t width) {
  const std::size_t shown = display_width(text);
  if (shown < width) text.append(width - shown, ' ');
}

std::string line(std::string start, const std::vector<std::string>& cells,
                 const std::vector<std::size_t>& widths) {
  for (std::size_t c = 0; c < cells.size(); ++c) {
    std::string cell = cells[c];
    if (c + 1 < cells.size()) pad_to(cell, widths[c]);
    start += (c == 0 ? "" : " │ ") + cell;
  }
  while (!start.empty() && start.back() == ' ') start.pop_back();
  return start;
}

// Where a row's first cell text starts: its indentation, the expander and the box.
std::size_t lead_width(std::size_t depth, bool boxes) noexcept {
  return 2 * depth + 2 + (boxes ? 4 : 0);
}

std::vector<std::string> row_cells(const row_values& row, std::size_t columns) {
  std::string lead(2 * row.depth, ' ');
  lead += row.expander == row_expander::none       ? "  "
          : row.expander == row_expander::expanded ? "▾ "
                                                   : "▸ ";
  if (row.box) {
    const bool on = row.box->ticked;
    lead += row.box->enabled ? (on ? "[x] " : "[ ] ") : (on ? "(x) " : "( ) ");
  }
  std::vector<std::string> cells(std::max<std::size_t>(columns, 1));
  cells[0] = std::move(lead);
  for (std::size_t c = 0; c < columns; ++c) {
    if (c < row.cells.size()) {
      cells[c] += row.cells[c].text;
      if (row.cells[c].emphasized) cells[c] += " *";
    }
  }
  return cells;
}

}  // namespace

std::vector<std::string> format_rows(const std::vector<std::optional<std::string>>& headers,
                                     bool boxes, const std::vector<row_values>& rows) {
  const std::size_t columns = headers.size();
  std::vector<std::vector<std::string>> cells;
  cells.reserve(rows.size());
  for (const row_values& row : rows) cells.push_back(row_cells(row, columns));
  // The header's first cell stands where a top-level row's text starts.
  std::vector<std::string> header(std::max<std::size_t>(columns, 1));
  bool any_header = false;
  for (std::size_t c = 0; c < columns; ++c) {
    any_header = any_header || headers[c].has_value();
    header[c] = (c == 0 ? std::string(lead_width(0, boxes), ' ') : "") + headers[c].value_or("");
  }
  std::vector<std::size_t> widths(header.size(), 0);
  for (std::size_t c = 0; c < header.size(); ++c) {
    if (any_header) widths[c] = display_width(header[c]);
    for (const auto& row : cells) widths[c] = std::max(widths[c], display_width(row[c]));
  }
  std::vector<std::string> lines;
  lines.reserve(rows.size() + 1);
  if (any_header) lines.push_back(line("   ", header, widths));
  for (std::size_t r = 0; r < rows.size(); ++r) {
    const std::string markers =
        std::string(rows[r].selected ? ">" : " ") + (rows[r].faulty ? "!" : " ") + " ";
    lines.push_back(line(markers, cells[r], widths));
  }
  return lines;
}

}  // namespace tx::host::dialog
