// The outline control's printing: the list read back through its own messages (headers, texts,
// indentation, boxes, expanders, selection) and written as the text host writes the rows.
#include <algorithm>

#include "outline_control.h"
#include "tx_host/dialog/row_format.h"
#include "tx_host/services/interface_object.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

// Room for most names; a longer one is asked for again with more.
constexpr std::size_t kFirstBuffer = 256;

// Column `column`'s header as the list shows it.
std::string header_of(HWND list, std::size_t column, std::vector<wchar_t>& buffer) {
  LVCOLUMNW item{};
  item.mask = LVCF_TEXT;
  item.pszText = buffer.data();
  item.cchTextMax = static_cast<int>(buffer.size());
  buffer[0] = L'\0';
  SendMessageW(list, LVM_GETCOLUMNW, column, reinterpret_cast<LPARAM>(&item));
  return to_utf8(reinterpret_cast<const char16_t*>(buffer.data()));
}

// The text of item `position` in column `column` as the list shows it.
std::string text_of(HWND list, int position, int column, std::vector<wchar_t>& buffer) {
  for (;;) {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(buffer.size());
    const LRESULT n =
        SendMessageW(list, LVM_GETITEMTEXTW, position, reinterpret_cast<LPARAM>(&item));
    if (n + 1 < static_cast<LRESULT>(buffer.size())) {
      return to_utf8(std::u16string_view(reinterpret_cast<const char16_t*>(buffer.data()),
                                         static_cast<std::size_t>(n)));
    }
    buffer.resize(buffer.size() * 2);
  }
}

}  // namespace

void outline_control::print(std::vector<std::string>& lines, const dialog::vocabulary&) const {
  std::vector<wchar_t> buffer(kFirstBuffer);
  const std::size_t columns = reader_.columns().size();
  const bool has_header = (GetWindowLongPtrW(list(), GWL_STYLE) & LVS_NOCOLUMNHEADER) == 0;
  std::vector<std::optional<std::string>> headers;
  for (std::size_t c = 0; c < columns; ++c) {
    headers.push_back(has_header ? std::optional(header_of(list(), c, buffer)) : std::nullopt);
  }
  const int count = static_cast<int>(SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0));
  std::vector<dialog::row_values> rows;
  rows.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < count && static_cast<std::size_t>(i) < rows_.size(); ++i) {
    LVITEMW item{};
    item.mask = LVIF_INDENT | LVIF_IMAGE | LVIF_STATE;
    item.iItem = i;
    item.stateMask = LVIS_SELECTED | LVIS_STATEIMAGEMASK;
    SendMessageW(list(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    dialog::row_values row;
    row.selected = (item.state & LVIS_SELECTED) != 0;
    row.depth = static_cast<std::size_t>(std::max(item.iIndent, 0));
    row.expander = expander_of_image(state_image_of(item.state));
    if (item.iImage >= 0) {
      row.box = dialog::row_box{box_ticked(item.iImage), box_enabled(item.iImage)};
    }
    // What the list draws in red and in bold it asks the rows when drawing, as here.
    const tx_custom_pointer pair = rows_[static_cast<std::size_t>(i)].row;
    row.faulty = reader_.faulty(pair);
    for (std::size_t c = 0; c < columns; ++c) {
      row.cells.push_back(
          {text_of(list(), i, static_cast<int>(c), buffer), reader_.emphasized(c, pair)});
    }
    rows.push_back(std::move(row));
  }
  for (std::string& line : dialog::format_rows(headers, present(reader_.checks()), rows)) {
    lines.push_back(std::move(line));
  }
}

}  // namespace tx::host::gui
