// The outline control's script actions, which send the list view what a person's input would,
// and its printing, which reads the list back through its own messages.
#include <algorithm>

#include "outline_control.h"
#include "tx/toolkit/outline.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/row_format.h"
#include "tx_host/services/interface_object.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

std::string quoted(std::string_view text) {
  std::string out(1, '"');
  out.append(text).push_back('"');
  return out;
}

}  // namespace

outline_control::target outline_control::find(std::string_view address) const {
  const dialog::outline_reader reader(outline_);
  const dialog::found_row found = dialog::find_row(reader, address);
  if (!present(found.row)) return {std::nullopt, found.error};
  const std::optional<std::size_t> position = rows_.find(found.row);
  if (!position) return {std::nullopt, "row " + quoted(address) + " is not shown"};
  return {position, {}};
}

POINT outline_control::point_at(std::size_t position, int part) const {
  SendMessageW(list_, LVM_ENSUREVISIBLE, position, FALSE);
  RECT r{part < 0 ? LVIR_ICON : part, 0, 0, 0};
  SendMessageW(list_, LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&r));
  if (part < 0) {
    // The expander stands just before the box.
    const int side = GetSystemMetrics(SM_CXSMICON);
    r.right = r.left;
    r.left -= side;
  }
  return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

void outline_control::click(POINT at, WPARAM keys) const {
  const LPARAM where = MAKELPARAM(at.x, at.y);
  SendMessageW(list_, WM_LBUTTONDOWN, MK_LBUTTON | keys, where);
  SendMessageW(list_, WM_LBUTTONUP, keys, where);
}

std::string outline_control::tick(std::string_view address, bool on) {
  const target t = find(address);
  if (!t.position) return t.error;
  if (!present(checks_)) return "the rows have no check boxes";
  LVITEMW item{};
  item.mask = LVIF_IMAGE;
  item.iItem = static_cast<int>(*t.position);
  SendMessageW(list_, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  if (!box_enabled(item.iImage)) {
    return "the box of row " + quoted(address) + " cannot be changed";
  }
  if (box_ticked(item.iImage) != on) click(point_at(*t.position, LVIR_ICON));
  return {};
}

std::string outline_control::select(std::string_view address, bool on) {
  const target t = find(address);
  if (!t.position) return t.error;
  const bool now = SendMessageW(list_, LVM_GETITEMSTATE, *t.position, LVIS_SELECTED) != 0;
  if (now != on) {
    SendMessageW(list_, LVM_ENSUREVISIBLE, *t.position, FALSE);
    set_list_state(*t.position, on ? LVIS_SELECTED : 0, LVIS_SELECTED);
  }
  return {};
}

std::string outline_control::expand(std::string_view address, bool on) {
  const target t = find(address);
  if (!t.position) return t.error;
  const UINT state =
      static_cast<UINT>(SendMessageW(list_, LVM_GETITEMSTATE, *t.position, LVIS_STATEIMAGEMASK));
  const int shown = static_cast<int>(state >> 12);
  if (shown == kExpanderNone) return "row " + quoted(address) + " has no rows under it";
  if ((shown == kExpanderExpanded) != on) click(point_at(*t.position, -1));
  return {};
}

std::string outline_control::rename(std::string_view address, std::string_view text, bool enter) {
  const target t = find(address);
  if (!t.position) return t.error;
  if (!first_editable(rows_[*t.position].row)) {
    return "row " + quoted(address) + " has no cell that can be edited";
  }
  // F2 edits the focused row: the focus moves there as Ctrl with an arrow key moves it.
  SendMessageW(list_, LVM_ENSUREVISIBLE, *t.position, FALSE);
  set_list_state(*t.position, LVIS_FOCUSED, LVIS_FOCUSED);
  SendMessageW(list_, WM_KEYDOWN, VK_F2, 0);
  if (!editor_) return "row " + quoted(address) + " has no cell that can be edited";
  HWND edit = editor_->window();
  const std::u16string typed = to_utf16(text);
  if (typed.empty()) SendMessageW(edit, WM_CHAR, VK_BACK, 0);
  for (const char16_t unit : typed) SendMessageW(edit, WM_CHAR, unit, 0);
  SendMessageW(edit, WM_KEYDOWN, enter ? VK_RETURN : VK_ESCAPE, 0);
  // The editor posted its closing: take it now, so the next command sees the result.
  MSG message;
  while (PeekMessageW(&message, list_, close_editor_message_, close_editor_message_, PM_REMOVE)) {
    DispatchMessageW(&message);
  }
  return {};
}

void outline_control::print(std::vector<std::string>& lines, const dialog::vocabulary&) const {
  std::vector<std::optional<std::string>> headers;
  const bool has_header = (GetWindowLongPtrW(list_, GWL_STYLE) & LVS_NOCOLUMNHEADER) == 0;
  std::vector<wchar_t> buffer(256);
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = buffer.data();
    column.cchTextMax = static_cast<int>(buffer.size());
    buffer[0] = L'\0';
    SendMessageW(list_, LVM_GETCOLUMNW, c, reinterpret_cast<LPARAM>(&column));
    headers.push_back(has_header ? std::optional<std::string>(
                                       to_utf8(reinterpret_cast<const char16_t*>(buffer.data())))
                                 : std::nullopt);
  }
  const auto text_of = [&](int position, int column) {
    // Longer names than the buffer holds: ask again with room for them.
    for (;;) {
      LVITEMW item{};
      item.iSubItem = column;
      item.pszText = buffer.data();
      item.cchTextMax = static_cast<int>(buffer.size());
      const LRESULT n =
          SendMessageW(list_, LVM_GETITEMTEXTW, position, reinterpret_cast<LPARAM>(&item));
      if (n + 1 < static_cast<LRESULT>(buffer.size())) {
        return to_utf8(std::u16string_view(reinterpret_cast<const char16_t*>(buffer.data()),
                                           static_cast<std::size_t>(n)));
      }
      buffer.resize(buffer.size() * 2);
    }
  };
  const int count = static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0));
  std::vector<dialog::row_values> rows;
  rows.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    LVITEMW item{};
    item.mask = LVIF_INDENT | LVIF_IMAGE | LVIF_STATE;
    item.iItem = i;
    item.stateMask = LVIS_SELECTED | LVIS_STATEIMAGEMASK;
    SendMessageW(list_, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    dialog::row_values row;
    row.selected = (item.state & LVIS_SELECTED) != 0;
    row.depth = static_cast<std::size_t>(std::max(item.iIndent, 0));
    const int shown = static_cast<int>((item.state & LVIS_STATEIMAGEMASK) >> 12);
    row.expander = shown == kExpanderExpanded    ? dialog::row_expander::expanded
                   : shown == kExpanderCollapsed ? dialog::row_expander::collapsed
                                                 : dialog::row_expander::none;
    if (item.iImage >= 0)
      row.box = dialog::row_box{box_ticked(item.iImage), box_enabled(item.iImage)};
    // What the list draws in red and in bold it asks the rows when drawing, as here.
    const tx_custom_pointer pair = rows_[static_cast<std::size_t>(i)].row;
    row.faulty = faulty(pair);
    for (std::size_t c = 0; c < columns_.size(); ++c) {
      row.cells.push_back({text_of(i, static_cast<int>(c)), emphasized(c, pair)});
    }
    rows.push_back(std::move(row));
  }
  for (std::string& line : dialog::format_rows(headers, present(checks_), rows)) {
    lines.push_back(std::move(line));
  }
}

}  // namespace tx::host::gui
