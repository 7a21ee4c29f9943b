// A person's input on the outline's list, seen before the list's own procedure: a click on an
// expander or a tick box acts at once, a double click edits a cell or opens a row, and the keys
// of a tree move between rows, expand, collapse, tick and edit.
#include <windowsx.h>

#include <algorithm>

#include "outline_action_scope.h"
#include "outline_control.h"
#include "tx/toolkit/outline.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::gui {
namespace {

// The characters that expand and collapse the focused row, as in a tree view; a space ticks,
// which the key already did.
constexpr WPARAM kExpandCharacter = L'+';
constexpr WPARAM kCollapseCharacter = L'-';
constexpr WPARAM kTickCharacter = L' ';
// What Ctrl+A types: taken by the key, not a letter to search for.
constexpr WPARAM kSelectAllCharacter = 0x01;

}  // namespace

std::optional<LRESULT> outline_control::on_list_message(UINT message, WPARAM wparam,
                                                        LPARAM lparam) {
  if (message == close_editor_message_) {
    if (editor_ && editor_->serial() == lparam) {
      const auto how = static_cast<editor_close>(wparam);
      close_editor(how == editor_close::keep ||
                   (how == editor_close::keep_if_changed && editor_changed()));
    }
    return 0;
  }
  if (message == rebuild_message_) {
    if (rebuild_posted_ && busy_ == 0) rebuild();
    return 0;
  }
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      return on_click(message, lparam);
    case WM_SETFOCUS:
      // A visible focus row from the start, not only once an arrow key was pressed.
      if (!focused() && rows_.size() > 0) {
        syncing_ = true;
        set_list_state(0, LVIS_FOCUSED, LVIS_FOCUSED);
        syncing_ = false;
      }
      return std::nullopt;
    case WM_KEYDOWN:
      if (wparam == 'A' && GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0) {
        // Ctrl+A selects every row; the boxes stay as they are.
        set_list_state(static_cast<std::size_t>(-1), LVIS_SELECTED, LVIS_SELECTED);
        return 0;
      }
      return on_key(wparam);
    case WM_CHAR:
      return on_character(wparam);
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
      // The editor stays over its cell only while the cell stays put.
      if (editor_) close_editor(editor_changed());
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> outline_control::on_click(UINT message, LPARAM lparam) {
  LVHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  SendMessageW(list(), LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  if (hit.iItem < 0) return std::nullopt;
  const auto position = static_cast<std::size_t>(hit.iItem);
  const auto column = static_cast<std::size_t>(std::max(hit.iSubItem, 0));
  // The expander and the box act at once, also on a second click, and leave the selection.
  if (hit.iSubItem == 0 && (hit.flags & (LVHT_ONITEMSTATEICON | LVHT_ONITEMICON)) != 0) {
    SetFocus(list());
    if ((hit.flags & LVHT_ONITEMSTATEICON) != 0) {
      toggle_expanded(position);
    } else {
      toggle_tick(position);
    }
    return 0;
  }
  if (message != WM_LBUTTONDBLCLK || position >= rows_.size()) return std::nullopt;
  const tx_custom_pointer row = rows_[position].row;
  if (reader_.editable(column, row)) {
    open_editor(position, column);
    return 0;
  }
  if (column == 0 && reader_.row_count(row) > 0) {
    toggle_expanded(position);
    return 0;
  }
  return std::nullopt;
}

std::optional<LRESULT> outline_control::on_key(WPARAM key) {
  const std::optional<std::size_t> position = focused();
  if (!position) return std::nullopt;
  const tx_custom_pointer row = rows_[*position].row;
  switch (key) {
    case VK_F2:
      if (const auto column = reader_.first_editable(row)) open_editor(*position, *column);
      return 0;
    case VK_SPACE:
      toggle_tick(*position);
      return 0;
    case VK_RIGHT:
    case VK_LEFT: {
      const bool right = key == VK_RIGHT;
      const bool has_rows = reader_.row_count(row) > 0;
      std::optional<std::size_t> go;
      if (has_rows && reader_.expanded(row) != right) {
        toggle_expanded(*position);
      } else if (right && has_rows) {
        go = *position + 1;
      } else if (!right) {
        go = rows_.parent(*position);
      }
      if (go && *go < rows_.size()) {
        // As the arrow keys move: the row reached is the one selected.
        LVITEMW none{};
        none.stateMask = LVIS_SELECTED;
        SendMessageW(list(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1),
                     reinterpret_cast<LPARAM>(&none));
        set_list_state(*go, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        SendMessageW(list(), LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(*go));
        SendMessageW(list(), LVM_ENSUREVISIBLE, *go, FALSE);
      }
      return 0;
    }
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> outline_control::on_character(WPARAM character) {
  if (character == kSelectAllCharacter) return 0;
  if (character != kExpandCharacter && character != kCollapseCharacter &&
      character != kTickCharacter) {
    return std::nullopt;
  }
  const std::optional<std::size_t> position = focused();
  if (character != kTickCharacter && position) {
    const tx_custom_pointer row = rows_[*position].row;
    if (reader_.row_count(row) > 0 && reader_.expanded(row) != (character == kExpandCharacter)) {
      toggle_expanded(*position);
    }
  }
  return 0;
}

std::optional<std::size_t> outline_control::focused() const {
  const LRESULT focus =
      SendMessageW(list(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  if (focus < 0 || static_cast<std::size_t>(focus) >= rows_.size()) return std::nullopt;
  return static_cast<std::size_t>(focus);
}

void outline_control::toggle_tick(std::size_t position) {
  action_scope scope(*this);
  const tx_custom_pointer checks = reader_.checks();
  if (position >= rows_.size() || !present(checks)) return;
  const tx_custom_pointer row = rows_[position].row;
  if (!reader_.check_enabled(row)) return;
  const bool on = !reader_.checked(row);
  // A tick on a selected row is a tick on every selected row, this one first.
  const std::vector<std::size_t> others =
      reader_.selected(row) ? list_selection(0) : std::vector<std::size_t>{};
  call(checks, &tx_outline_checks_interface_1::set_checked, row, on);
  for (const std::size_t s : others) {
    // A redraw tells that the plug-in itself ticked what it had to.
    if (rows_pending_) break;
    const tx_custom_pointer other = rows_[s].row;
    if (s != position && reader_.check_enabled(other) && reader_.checked(other) != on) {
      call(checks, &tx_outline_checks_interface_1::set_checked, other, on);
    }
  }
  if (rows_pending_) return;
  if (others.empty()) {
    SendMessageW(list(), LVM_REDRAWITEMS, position, position);
  } else {
    InvalidateRect(list(), nullptr, TRUE);
  }
}

}  // namespace tx::host::gui
