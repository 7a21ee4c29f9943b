// The outline control's rows and the list's selection: the flat index read afresh or spliced, and
// the list's selection, focus, anchor and first shown row kept on their rows through either.
#include <algorithm>

#include "outline_action_scope.h"
#include "outline_control.h"
#include "tx/toolkit/outline.h"
#include "tx_host/services/interface_object.h"
#include "tx_host/window_logic/row_positions.h"

namespace tx::host::gui {
namespace {

using window_logic::row_mark;
using window_logic::row_splice;

// The list's answer for "no item".
constexpr LRESULT kNoItem = -1;

LRESULT focused_item(HWND list) {
  return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(kNoItem), LVNI_FOCUSED);
}

}  // namespace

void outline_control::rebuild() {
  rows_pending_ = false;
  rebuild_posted_ = false;
  // The rows under an editor may be gone: what was typed is dropped.
  editor_.reset();
  const LRESULT old_top = SendMessageW(list(), LVM_GETTOPINDEX, 0, 0);
  const row_mark top(rows_, old_top);
  const row_mark focus(rows_, focused_item(list()));
  const row_mark anchor(rows_, SendMessageW(list(), LVM_GETSELECTIONMARK, 0, 0));

  std::vector<std::size_t> wanted;
  rows_.rebuild(wanted);
  SendMessageW(list(), LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOSCROLL);
  select_in_list(0, wanted);

  // The same rows keep the focus, the anchor of a range and the top of the list.
  syncing_ = true;
  if (const auto at = focus.find_in(rows_)) set_list_state(*at, LVIS_FOCUSED, LVIS_FOCUSED);
  if (const auto at = anchor.find_in(rows_)) {
    SendMessageW(list(), LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(*at));
  }
  syncing_ = false;
  if (const auto at = top.find_in(rows_)) {
    const LRESULT now = SendMessageW(list(), LVM_GETTOPINDEX, 0, 0);
    RECT item{LVIR_BOUNDS, 0, 0, 0};
    if (*at != static_cast<std::size_t>(now) &&
        SendMessageW(list(), LVM_GETITEMRECT, static_cast<WPARAM>(now),
                     reinterpret_cast<LPARAM>(&item))) {
      const int step = item.bottom - item.top;
      SendMessageW(list(), LVM_SCROLL, 0, (static_cast<LRESULT>(*at) - now) * step);
    }
  }
  InvalidateRect(list(), nullptr, TRUE);
}

std::vector<std::size_t> outline_control::list_selection(std::size_t from) const {
  std::vector<std::size_t> positions;
  if (SendMessageW(list(), LVM_GETSELECTEDCOUNT, 0, 0) == 0) return positions;
  LRESULT at = static_cast<LRESULT>(from) - 1;
  while ((at = SendMessageW(list(), LVM_GETNEXTITEM, static_cast<WPARAM>(at), LVNI_SELECTED)) >=
         0) {
    positions.push_back(static_cast<std::size_t>(at));
  }
  return positions;
}

void outline_control::set_list_state(std::size_t position, UINT state, UINT mask) {
  LVITEMW item{};
  item.stateMask = mask;
  item.state = state;
  SendMessageW(list(), LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
}

void outline_control::select_in_list(std::size_t from, const std::vector<std::size_t>& wanted) {
  syncing_ = true;
  for (const auto& change : window_logic::selection_changes(list_selection(from), wanted)) {
    set_list_state(change.position, change.selected ? LVIS_SELECTED : 0, LVIS_SELECTED);
  }
  syncing_ = false;
}

void outline_control::toggle_expanded(std::size_t position) {
  action_scope scope(*this);
  if (position >= rows_.size()) return;
  const tx_custom_pointer row = rows_[position].row;
  if (reader_.row_count(row) == 0) return;
  const bool on = !reader_.expanded(row);
  call(reader_.outline(), &tx_outline_interface_32::set_expanded, row, on);
  // The plug-in redrew (the scope's end reads every row again) or refused.
  if (rows_pending_ || reader_.expanded(row) != on) return;

  // The rows after this one move: the list's selection, focus and anchor move with them.
  const std::vector<std::size_t> after = list_selection(position + 1);
  const LRESULT focus = focused_item(list());
  const LRESULT anchor = SendMessageW(list(), LVM_GETSELECTIONMARK, 0, 0);
  std::vector<std::size_t> inserted;
  row_splice splice{position, 0, 0};
  // Positions in the list count the old rows until its count changes: the old selection is
  // cleared before it shrinks, the new one set after it grows.
  if (on) {
    splice.inserted = rows_.expand(position, inserted);
    SendMessageW(list(), LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
  } else {
    splice.removed = rows_.collapse(position);
  }
  syncing_ = true;
  for (auto s = after.rbegin(); s != after.rend(); ++s) set_list_state(*s, 0, LVIS_SELECTED);
  for (const std::size_t s : splice.selection(after, inserted)) {
    set_list_state(s, LVIS_SELECTED, LVIS_SELECTED);
  }
  syncing_ = false;
  if (!on) {
    SendMessageW(list(), LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
  }
  syncing_ = true;
  if (focus >= 0) {
    set_list_state(splice.moved(static_cast<std::size_t>(focus)), LVIS_FOCUSED, LVIS_FOCUSED);
  }
  if (anchor >= 0) {
    SendMessageW(list(), LVM_SETSELECTIONMARK, 0,
                 static_cast<LPARAM>(splice.moved(static_cast<std::size_t>(anchor))));
  }
  syncing_ = false;
  // Everything from this row down is erased and drawn again: the list paints a row's boxes and
  // expander over what is there, so rows that moved would show through them otherwise.
  RECT item{LVIR_BOUNDS, 0, 0, 0};
  RECT below{};
  GetClientRect(list(), &below);
  if (SendMessageW(list(), LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&item))) {
    below.top = std::max<LONG>(item.top, 0);
  }
  InvalidateRect(list(), &below, TRUE);
  // A scroll bar that came or went moves the header's right end.
  InvalidateRect(reinterpret_cast<HWND>(SendMessageW(list(), LVM_GETHEADER, 0, 0)), nullptr, TRUE);
}

void outline_control::handed_selection(std::size_t first, std::size_t last, bool on) {
  action_scope scope(*this, true);
  for (std::size_t i = first; i <= last && i < rows_.size() && !rows_pending_; ++i) {
    const tx_custom_pointer row = rows_[i].row;
    if (reader_.selected(row) != on) {
      call(reader_.outline(), &tx_outline_interface_32::set_selected, row, on);
    }
  }
}

void outline_control::reveal(tx_custom_pointer row) {
  const std::optional<std::size_t> position = rows_.find(row);
  if (!position) return;
  // The plug-in made it the only selected row: the list shows the same.
  select_in_list(0, {*position});
  syncing_ = true;
  set_list_state(*position, LVIS_FOCUSED, LVIS_FOCUSED);
  syncing_ = false;
  SendMessageW(list(), LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(*position));
  SendMessageW(list(), LVM_ENSUREVISIBLE, *position, FALSE);
  SetFocus(list());
}

}  // namespace tx::host::gui
