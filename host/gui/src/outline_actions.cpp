// The outline control's script actions, which send the list view what a person's input would.
#include "outline_control.h"
#include "tx_host/dialog/refusal.h"
#include "tx_host/services/interface_object.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

// point_at's part for the expander, which the list has no LVIR_* value for.
constexpr int kExpanderPart = -1;

}  // namespace

outline_control::target outline_control::find(std::string_view address) const {
  const dialog::found_row found = dialog::find_row(reader_, address);
  if (!present(found.row)) return {std::nullopt, found.refused};
  const std::optional<std::size_t> position = rows_.find(found.row);
  if (!position) {
    return {std::nullopt,
            dialog::refusal{dialog::refusal_reason::row_not_shown, std::string(address)}};
  }
  return {position, std::nullopt};
}

POINT outline_control::point_at(std::size_t position, int part) const {
  SendMessageW(list(), LVM_ENSUREVISIBLE, position, FALSE);
  RECT r{part == kExpanderPart ? LVIR_ICON : part, 0, 0, 0};
  SendMessageW(list(), LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&r));
  if (part == kExpanderPart) {
    // The expander stands just before the box.
    const int side = GetSystemMetrics(SM_CXSMICON);
    r.right = r.left;
    r.left -= side;
  }
  return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

void outline_control::click(POINT at, WPARAM keys) const {
  const LPARAM where = MAKELPARAM(at.x, at.y);
  SendMessageW(list(), WM_LBUTTONDOWN, MK_LBUTTON | keys, where);
  SendMessageW(list(), WM_LBUTTONUP, keys, where);
}

std::optional<dialog::refusal> outline_control::tick(std::string_view address, bool on) {
  const target t = find(address);
  if (!t.position) return t.refused;
  if (!present(reader_.checks())) return dialog::refusal{dialog::refusal_reason::no_check_boxes};
  LVITEMW item{};
  item.mask = LVIF_IMAGE;
  item.iItem = static_cast<int>(*t.position);
  SendMessageW(list(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  if (!box_enabled(item.iImage)) {
    return dialog::refusal{dialog::refusal_reason::box_fixed, std::string(address)};
  }
  if (box_ticked(item.iImage) != on) click(point_at(*t.position, LVIR_ICON));
  return std::nullopt;
}

std::optional<dialog::refusal> outline_control::select(std::string_view address, bool on) {
  const target t = find(address);
  if (!t.position) return t.refused;
  const bool now = SendMessageW(list(), LVM_GETITEMSTATE, *t.position, LVIS_SELECTED) != 0;
  if (now != on) {
    SendMessageW(list(), LVM_ENSUREVISIBLE, *t.position, FALSE);
    set_list_state(*t.position, on ? LVIS_SELECTED : 0, LVIS_SELECTED);
  }
  return std::nullopt;
}

std::optional<dialog::refusal> outline_control::expand(std::string_view address, bool on) {
  const target t = find(address);
  if (!t.position) return t.refused;
  const auto state =
      static_cast<UINT>(SendMessageW(list(), LVM_GETITEMSTATE, *t.position, LVIS_STATEIMAGEMASK));
  const dialog::row_expander shown = expander_of_image(state_image_of(state));
  if (shown == dialog::row_expander::none) {
    return dialog::refusal{dialog::refusal_reason::no_rows_under, std::string(address)};
  }
  if ((shown == dialog::row_expander::expanded) != on) click(point_at(*t.position, kExpanderPart));
  return std::nullopt;
}

std::optional<dialog::refusal> outline_control::rename(std::string_view address,
                                                       std::string_view text, bool enter) {
  const target t = find(address);
  if (!t.position) return t.refused;
  const dialog::refusal no_cell{dialog::refusal_reason::no_editable_cell, std::string(address)};
  if (!reader_.first_editable(rows_[*t.position].row)) return no_cell;
  // F2 edits the focused row: the focus moves there as Ctrl with an arrow key moves it.
  SendMessageW(list(), LVM_ENSUREVISIBLE, *t.position, FALSE);
  set_list_state(*t.position, LVIS_FOCUSED, LVIS_FOCUSED);
  SendMessageW(list(), WM_KEYDOWN, VK_F2, 0);
  if (!editor_) return no_cell;
  HWND edit = editor_->window();
  const std::u16string typed = to_utf16(text);
  if (typed.empty()) SendMessageW(edit, WM_CHAR, VK_BACK, 0);
  for (const char16_t unit : typed) SendMessageW(edit, WM_CHAR, unit, 0);
  SendMessageW(edit, WM_KEYDOWN, enter ? VK_RETURN : VK_ESCAPE, 0);
  // The editor posted its closing: take it now, so the next command sees the result.
  MSG message;
  while (PeekMessageW(&message, list(), close_editor_message_, close_editor_message_, PM_REMOVE)) {
    DispatchMessageW(&message);
  }
  return std::nullopt;
}

}  // namespace tx::host::gui
