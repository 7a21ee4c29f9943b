#include "outline_control.h"

#include <windowsx.h>

#include <algorithm>

#include "tx/toolkit/outline.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/services/string_collector.h"
#include "tx_host/services/utf.h"

namespace tx::host::gui {
namespace {

using outline_table = tx_outline_interface_32;
using column_table = tx_string_outline_column_interface_10;
using checks_table = tx_outline_checks_interface_1;

// How the in-place editor asks to close (wParam of the close message).
constexpr WPARAM kDrop = 0;       // Esc
constexpr WPARAM kKeep = 1;       // Enter
constexpr WPARAM kKeepIfNew = 2;  // the focus left the box

// A faulty row's text: the red Windows uses for errors, dark enough to read on white.
constexpr COLORREF kFaultyText = RGB(200, 0, 0);

const wchar_t* wide(const std::u16string& text) noexcept {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

}  // namespace

// Rebuilding waits for the end of an action: the rows it is working on stay the list's rows
// until then. An action the list itself runs (a selection change it notifies) has the rebuild
// posted, so the list is not changed under its own feet.
class outline_control::action_scope {
 public:
  action_scope(outline_control& control, bool from_list = false) noexcept
      : control_(control), from_list_(from_list) {
    ++control_.busy_;
  }
  action_scope(const action_scope&) = delete;
  action_scope& operator=(const action_scope&) = delete;
  ~action_scope() {
    if (--control_.busy_ > 0 || !control_.rows_pending_) return;
    if (from_list_) {
      if (!control_.rebuild_posted_) PostMessageW(control_.list_, control_.rebuild_message_, 0, 0);
      control_.rebuild_posted_ = true;
      return;
    }
    control_.rows_pending_ = false;
    control_.rebuild();
  }

 private:
  outline_control& control_;
  bool from_list_;
};

outline_control::outline_control(HWND parent, tx_custom_pointer outline, const metrics& m)
    : outline_(outline),
      font_(m.font),
      bold_font_(m.bold_font != nullptr ? m.bold_font : m.font),
      rows_(outline),
      close_editor_message_(RegisterWindowMessageW(L"tx_host_outline_close_editor")),
      rebuild_message_(RegisterWindowMessageW(L"tx_host_outline_rebuild")) {
  read_columns();
  bool any_header = false;
  for (const tx_custom_pointer column : columns_) {
    any_header = any_header || dialog::collect_text([column](tx_custom_pointer v) {
                                 return call(column, &column_table::header, v);
                               }).has_value();
  }
  DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA |
                LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
  if (!any_header) style |= LVS_NOCOLUMNHEADER;
  list_ = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"", style, 0, 0, 0, 0, parent, nullptr,
                          GetModuleHandleW(nullptr), nullptr);
  if (list_ == nullptr) return;
  SendMessageW(list_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
  const DWORD extended = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, extended, extended);
  images_ = std::make_unique<outline_images>(GetSystemMetrics(SM_CXSMICON));
  SendMessageW(list_, LVM_SETIMAGELIST, LVSIL_STATE,
               reinterpret_cast<LPARAM>(images_->expanders()));
  // The boxes are the small images; without boxes they still set the indentation's step.
  SendMessageW(list_, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images_->boxes()));
  // The expander comes from the rows, asked when drawn; selection and focus are the list's.
  SendMessageW(list_, LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK, 0);
  const std::size_t shown_columns = std::max<std::size_t>(columns_.size(), 1);
  for (std::size_t c = 0; c < shown_columns; ++c) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = const_cast<wchar_t*>(L"");
    column.cx = m.dlu_x(80);
    column.iSubItem = static_cast<int>(c);
    SendMessageW(list_, LVM_INSERTCOLUMNW, c, reinterpret_cast<LPARAM>(&column));
  }
  read_headers();
  SetWindowSubclass(list_, &list_procedure, 1, reinterpret_cast<DWORD_PTR>(this));
  rebuild();
}

outline_control::~outline_control() {
  editor_.reset();
  if (list_ != nullptr) {
    RemoveWindowSubclass(list_, &list_procedure, 1);
    DestroyWindow(list_);
  }
}

void outline_control::read_columns() {
  columns_ = dialog::outline_reader(outline_).columns();
  checks_ = dialog::outline_reader(outline_).checks();
}

void outline_control::read_headers() {
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    const tx_custom_pointer column = columns_[c];
    string_collector header;
    call(column, &column_table::header, header.pair());
    LVCOLUMNW item{};
    item.mask = LVCF_TEXT;
    item.pszText = const_cast<wchar_t*>(wide(header.text()));
    SendMessageW(list_, LVM_SETCOLUMNW, c, reinterpret_cast<LPARAM>(&item));
  }
}

size_request outline_control::request(const metrics& m) const {
  // Room for two columns of long Russian names and a screenful of rows.
  return {m.dlu_x(320), m.dlu_y(190), true, true};
}

void outline_control::place(const RECT& area) {
  MoveWindow(list_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
  RECT client{};
  GetClientRect(list_, &client);
  const int width = client.right - GetSystemMetrics(SM_CXVSCROLL);
  if (width == width_ || width <= 0) return;
  width_ = width;
  // The first column holds the expander, the box and the old name: a little more room.
  const int columns = static_cast<int>(std::max<std::size_t>(columns_.size(), 1));
  const int first = columns == 1 ? width : width * 11 / (10 * columns);
  const int rest = columns == 1 ? 0 : (width - first) / (columns - 1);
  for (int c = 0; c < columns; ++c) {
    SendMessageW(list_, LVM_SETCOLUMNWIDTH, c, c == 0 ? first : rest);
  }
}

void outline_control::show(bool shown) { ShowWindow(list_, shown ? SW_SHOW : SW_HIDE); }

void outline_control::refresh(std::uint32_t changes) {
  if ((changes & TX_CHANGED_TEXTS) != 0) read_headers();
  if ((changes & TX_CHANGED_ROWS) != 0) {
    if (busy_ > 0) {
      rows_pending_ = true;
    } else {
      rebuild();
    }
    return;
  }
  if ((changes & (TX_CHANGED_VALUE | TX_CHANGED_STATE | TX_CHANGED_TEXTS)) != 0) {
    InvalidateRect(list_, nullptr, FALSE);
  }
}

// Reading the rows.

bool outline_control::has_children(tx_custom_pointer row) const noexcept {
  return call(outline_, &outline_table::row_count, row) > 0;
}
bool outline_control::expanded(tx_custom_pointer row) const noexcept {
  return call(outline_, &outline_table::expanded, row);
}
int outline_control::expander(tx_custom_pointer row) const noexcept {
  if (!has_children(row)) return kExpanderNone;
  return expanded(row) ? kExpanderExpanded : kExpanderCollapsed;
}
bool outline_control::selected(tx_custom_pointer row) const noexcept {
  return call(outline_, &outline_table::selected, row);
}
bool outline_control::faulty(tx_custom_pointer row) const noexcept {
  return call(outline_, &outline_table::faulty, row);
}
bool outline_control::ticked(tx_custom_pointer row) const noexcept {
  return call(checks_, &checks_table::checked, row);
}
bool outline_control::tick_enabled(tx_custom_pointer row) const noexcept {
  return call(checks_, &checks_table::enabled, row);
}
bool outline_control::editable(std::size_t column, tx_custom_pointer row) const noexcept {
  return column < columns_.size() && call(columns_[column], &column_table::editable, row);
}
bool outline_control::emphasized(std::size_t column, tx_custom_pointer row) const noexcept {
  return column < columns_.size() && call(columns_[column], &column_table::emphasized, row);
}
std::u16string outline_control::cell(std::size_t column, tx_custom_pointer row) const {
  if (column >= columns_.size()) return {};
  string_collector text;
  if (!call(columns_[column], &column_table::text, row, text.pair())) return {};
  return text.text();
}
std::optional<std::size_t> outline_control::first_editable(tx_custom_pointer row) const noexcept {
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    if (editable(c, row)) return c;
  }
  return std::nullopt;
}

// The flat index and the list's selection.

void outline_control::rebuild() {
  rows_pending_ = false;
  rebuild_posted_ = false;
  // The rows under an editor may be gone: what was typed is dropped.
  editor_.reset();
  const auto key_at = [this](LRESULT position) -> std::optional<std::uint64_t> {
    if (position < 0 || static_cast<std::size_t>(position) >= rows_.size()) return std::nullopt;
    return rows_[static_cast<std::size_t>(position)].key;
  };
  const LRESULT old_top = SendMessageW(list_, LVM_GETTOPINDEX, 0, 0);
  const LRESULT old_focus =
      SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  const LRESULT old_mark = SendMessageW(list_, LVM_GETSELECTIONMARK, 0, 0);
  const std::optional<std::uint64_t> top_key = key_at(old_top);
  const std::optional<std::uint64_t> focus_key = key_at(old_focus);
  const std::optional<std::uint64_t> mark_key = key_at(old_mark);

  std::vector<std::size_t> wanted;
  rows_.rebuild(wanted);
  SendMessageW(list_, LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOSCROLL);
  select_in_list(0, wanted);

  // The same rows keep the focus, the anchor of a range and the top of the list.
  const auto again = [this](std::optional<std::uint64_t> key, LRESULT around) {
    return key ? rows_.find_key(*key, static_cast<std::size_t>(std::max<LRESULT>(around, 0)))
               : std::nullopt;
  };
  syncing_ = true;
  if (const auto focus = again(focus_key, old_focus)) {
    set_list_state(*focus, LVIS_FOCUSED, LVIS_FOCUSED);
  }
  if (const auto mark = again(mark_key, old_mark)) {
    SendMessageW(list_, LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(*mark));
  }
  syncing_ = false;
  if (const auto top = again(top_key, old_top)) {
    const LRESULT now = SendMessageW(list_, LVM_GETTOPINDEX, 0, 0);
    RECT item{LVIR_BOUNDS, 0, 0, 0};
    if (*top != static_cast<std::size_t>(now) &&
        SendMessageW(list_, LVM_GETITEMRECT, static_cast<WPARAM>(now),
                     reinterpret_cast<LPARAM>(&item))) {
      const int step = item.bottom - item.top;
      SendMessageW(list_, LVM_SCROLL, 0, (static_cast<LRESULT>(*top) - now) * step);
    }
  }
  InvalidateRect(list_, nullptr, FALSE);
}

std::vector<std::size_t> outline_control::list_selection(std::size_t from) const {
  std::vector<std::size_t> positions;
  if (SendMessageW(list_, LVM_GETSELECTEDCOUNT, 0, 0) == 0) return positions;
  LRESULT at = static_cast<LRESULT>(from) - 1;
  while ((at = SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(at), LVNI_SELECTED)) >= 0) {
    positions.push_back(static_cast<std::size_t>(at));
  }
  return positions;
}

void outline_control::set_list_state(std::size_t position, UINT state, UINT mask) {
  LVITEMW item{};
  item.stateMask = mask;
  item.state = state;
  SendMessageW(list_, LVM_SETITEMSTATE, position, reinterpret_cast<LPARAM>(&item));
}

void outline_control::select_in_list(std::size_t from, const std::vector<std::size_t>& wanted) {
  const std::vector<std::size_t> now = list_selection(from);
  syncing_ = true;
  auto n = now.begin();
  auto w = wanted.begin();
  while (n != now.end() || w != wanted.end()) {
    if (w == wanted.end() || (n != now.end() && *n < *w)) {
      set_list_state(*n++, 0, LVIS_SELECTED);
    } else if (n == now.end() || *w < *n) {
      set_list_state(*w++, LVIS_SELECTED, LVIS_SELECTED);
    } else {
      ++n, ++w;
    }
  }
  syncing_ = false;
}

// What a person's input does.

void outline_control::toggle_expanded(std::size_t position) {
  action_scope scope(*this);
  if (position >= rows_.size()) return;
  const tx_custom_pointer row = rows_[position].row;
  if (!has_children(row)) return;
  const bool on = !expanded(row);
  call(outline_, &outline_table::set_expanded, row, on);
  // The plug-in redrew (the scope's end reads every row again) or refused.
  if (rows_pending_ || expanded(row) != on) return;

  // The rows after this one move: the list's selection, focus and anchor move with them.
  const std::vector<std::size_t> after = list_selection(position + 1);
  const LRESULT focus = SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  const LRESULT mark = SendMessageW(list_, LVM_GETSELECTIONMARK, 0, 0);
  const auto moved = [position](LRESULT at, std::size_t end, std::ptrdiff_t shift) -> LRESULT {
    if (at <= static_cast<LRESULT>(position)) return at;
    if (at < static_cast<LRESULT>(end)) return static_cast<LRESULT>(position);
    return at + shift;
  };
  std::vector<std::size_t> wanted;
  std::size_t end = position + 1;
  std::ptrdiff_t shift = 0;
  if (on) {
    shift = static_cast<std::ptrdiff_t>(rows_.expand(position, wanted));
    SendMessageW(list_, LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
    for (const std::size_t s : after) wanted.push_back(s + static_cast<std::size_t>(shift));
    // Positions in the list still count the old rows: compare with what it selects now.
    syncing_ = true;
    for (auto s = after.rbegin(); s != after.rend(); ++s) set_list_state(*s, 0, LVIS_SELECTED);
    for (const std::size_t s : wanted) set_list_state(s, LVIS_SELECTED, LVIS_SELECTED);
    syncing_ = false;
  } else {
    end = rows_.subtree_end(position);
    shift = -static_cast<std::ptrdiff_t>(rows_.collapse(position));
    for (const std::size_t s : after) {
      if (s >= end) wanted.push_back(s - static_cast<std::size_t>(-shift));
    }
    syncing_ = true;
    for (const std::size_t s : after) set_list_state(s, 0, LVIS_SELECTED);
    for (const std::size_t s : wanted) set_list_state(s, LVIS_SELECTED, LVIS_SELECTED);
    syncing_ = false;
    SendMessageW(list_, LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
  }
  syncing_ = true;
  if (focus >= 0)
    set_list_state(static_cast<std::size_t>(moved(focus, end, shift)), LVIS_FOCUSED, LVIS_FOCUSED);
  if (mark >= 0) SendMessageW(list_, LVM_SETSELECTIONMARK, 0, moved(mark, end, shift));
  syncing_ = false;
  // Everything from this row down is drawn again.
  RECT item{LVIR_BOUNDS, 0, 0, 0};
  RECT below{};
  GetClientRect(list_, &below);
  if (SendMessageW(list_, LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&item))) {
    below.top = std::max<LONG>(item.top, 0);
  }
  InvalidateRect(list_, &below, FALSE);
}

void outline_control::toggle_tick(std::size_t position) {
  action_scope scope(*this);
  if (position >= rows_.size() || !present(checks_)) return;
  const tx_custom_pointer row = rows_[position].row;
  if (!tick_enabled(row)) return;
  const bool on = !ticked(row);
  // A tick on a selected row is a tick on every selected row, this one first.
  const std::vector<std::size_t> others =
      selected(row) ? list_selection(0) : std::vector<std::size_t>{};
  call(checks_, &checks_table::set_checked, row, on);
  for (const std::size_t s : others) {
    // A redraw tells that the plug-in itself ticked what it had to.
    if (rows_pending_) break;
    const tx_custom_pointer other = rows_[s].row;
    if (s != position && tick_enabled(other) && ticked(other) != on) {
      call(checks_, &checks_table::set_checked, other, on);
    }
  }
  if (rows_pending_) return;
  if (others.empty()) {
    SendMessageW(list_, LVM_REDRAWITEMS, position, position);
  } else {
    InvalidateRect(list_, nullptr, FALSE);
  }
}

void outline_control::handed_selection(std::size_t first, std::size_t last, bool on) {
  action_scope scope(*this, true);
  for (std::size_t i = first; i <= last && i < rows_.size() && !rows_pending_; ++i) {
    const tx_custom_pointer row = rows_[i].row;
    if (selected(row) != on) call(outline_, &outline_table::set_selected, row, on);
  }
}

void outline_control::open_editor(std::size_t position, std::size_t column) {
  close_editor(false);
  if (position >= rows_.size()) return;
  const tx_custom_pointer row = rows_[position].row;
  if (!editable(column, row)) return;
  SendMessageW(list_, LVM_ENSUREVISIBLE, position, FALSE);
  RECT cell{LVIR_LABEL, static_cast<LONG>(column), 0, 0};
  if (!SendMessageW(list_, LVM_GETSUBITEMRECT, position, reinterpret_cast<LPARAM>(&cell))) return;
  // The box covers the cell's text with a border of its own around it.
  InflateRect(&cell, 0, 2);
  if (column > 0) cell.left += 2;
  editor_ = std::make_unique<cell_editor>(list_, cell, font_, this->cell(column, row),
                                          close_editor_message_, ++editor_serial_);
  editor_row_ = row;
  editor_column_ = column;
}

void outline_control::close_editor(bool keep) {
  if (!editor_) return;
  const std::u16string text = editor_->text();
  const tx_custom_pointer row = editor_row_;
  const std::size_t column = editor_column_;
  editor_.reset();
  if (!keep) return;
  action_scope scope(*this);
  call(columns_[column], &column_table::set_text, row, text.c_str());
  if (!rows_pending_) InvalidateRect(list_, nullptr, FALSE);
}

// The list.

void outline_control::fill_item(LVITEMW& item) const {
  if (item.iItem < 0 || static_cast<std::size_t>(item.iItem) >= rows_.size()) return;
  const visible_row& shown = rows_[static_cast<std::size_t>(item.iItem)];
  const std::size_t column = static_cast<std::size_t>(std::max(item.iSubItem, 0));
  if ((item.mask & LVIF_TEXT) != 0 && item.pszText != nullptr && item.cchTextMax > 0) {
    const std::u16string text = cell(column, shown.row);
    const std::size_t n = std::min<std::size_t>(text.size(), item.cchTextMax - 1);
    std::copy_n(text.begin(), n, item.pszText);
    item.pszText[n] = L'\0';
  }
  if (item.iSubItem != 0) return;
  if ((item.mask & LVIF_INDENT) != 0) item.iIndent = shown.depth;
  if ((item.mask & LVIF_IMAGE) != 0) {
    item.iImage =
        present(checks_) ? box_image(ticked(shown.row), tick_enabled(shown.row)) : I_IMAGENONE;
  }
  if ((item.mask & LVIF_STATE) != 0 && (item.stateMask & LVIS_STATEIMAGEMASK) != 0) {
    item.state = (item.state & ~LVIS_STATEIMAGEMASK) |
                 INDEXTOSTATEIMAGEMASK(static_cast<UINT>(expander(shown.row)));
  }
}

LRESULT outline_control::custom_draw(NMLVCUSTOMDRAW& draw) const {
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      return CDRF_NOTIFYSUBITEMDRAW | CDRF_NOTIFYPOSTPAINT;
    case CDDS_ITEMPOSTPAINT: {
      // The list blends the small image of a selected row with the highlight; a tick box is
      // drawn again as it is, like a check box on a selected row.
      const std::size_t position = draw.nmcd.dwItemSpec;
      if (!present(checks_) || position >= rows_.size() ||
          SendMessageW(list_, LVM_GETITEMSTATE, position, LVIS_SELECTED) == 0) {
        return CDRF_DODEFAULT;
      }
      RECT icon{LVIR_ICON, 0, 0, 0};
      if (SendMessageW(list_, LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&icon))) {
        const tx_custom_pointer row = rows_[position].row;
        ImageList_Draw(images_->boxes(), box_image(ticked(row), tick_enabled(row)), draw.nmcd.hdc,
                       icon.left, icon.top, ILD_NORMAL);
      }
      return CDRF_DODEFAULT;
    }
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
      const std::size_t position = draw.nmcd.dwItemSpec;
      if (position >= rows_.size()) return CDRF_DODEFAULT;
      const tx_custom_pointer row = rows_[position].row;
      const std::size_t column = static_cast<std::size_t>(std::max(draw.iSubItem, 0));
      SelectObject(draw.nmcd.hdc, emphasized(column, row) ? bold_font_ : font_);
      draw.clrText = faulty(row) ? kFaultyText : CLR_DEFAULT;
      return CDRF_NEWFONT;
    }
    default:
      return CDRF_DODEFAULT;
  }
}

bool outline_control::on_notify(const NMHDR& header, LRESULT& result) {
  if (header.hwndFrom != list_) return false;
  // The notifications carry their structures around the header.
  NMHDR& h = const_cast<NMHDR&>(header);
  switch (header.code) {
    case LVN_GETDISPINFOW:
      fill_item(reinterpret_cast<NMLVDISPINFOW&>(h).item);
      result = 0;
      return true;
    case NM_CUSTOMDRAW:
      result = custom_draw(reinterpret_cast<NMLVCUSTOMDRAW&>(h));
      return true;
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
      result = 0;
      if (syncing_ || (change.uChanged & LVIF_STATE) == 0 ||
          ((change.uOldState ^ change.uNewState) & LVIS_SELECTED) == 0) {
        return true;
      }
      const bool on = (change.uNewState & LVIS_SELECTED) != 0;
      if (change.iItem < 0) {
        if (!rows_.size()) return true;
        handed_selection(0, rows_.size() - 1, on);
      } else {
        handed_selection(static_cast<std::size_t>(change.iItem),
                         static_cast<std::size_t>(change.iItem), on);
      }
      return true;
    }
    case LVN_ODSTATECHANGED: {
      const auto& change = reinterpret_cast<const NMLVODSTATECHANGE&>(header);
      result = 0;
      if (!syncing_ && ((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0 &&
          change.iFrom >= 0 && change.iTo >= change.iFrom) {
        handed_selection(static_cast<std::size_t>(change.iFrom),
                         static_cast<std::size_t>(change.iTo),
                         (change.uNewState & LVIS_SELECTED) != 0);
      }
      return true;
    }
    case LVN_ODFINDITEMW:
      result = find_typed(reinterpret_cast<const NMLVFINDITEMW&>(header));
      return true;
    default:
      return false;
  }
}

LRESULT outline_control::find_typed(const NMLVFINDITEMW& find) const {
  // Typing a name's first letters goes to the next shown row whose first text starts so, as in
  // any list; letters are compared without case.
  if ((find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || find.lvfi.psz == nullptr ||
      rows_.size() == 0) {
    return -1;
  }
  std::wstring typed(find.lvfi.psz);
  if (typed.empty()) return -1;
  CharLowerBuffW(typed.data(), static_cast<DWORD>(typed.size()));
  const std::size_t count = rows_.size();
  const std::size_t start = find.iStart >= 0 ? static_cast<std::size_t>(find.iStart) % count : 0;
  for (std::size_t n = 0; n < count; ++n) {
    const std::size_t i = (start + n) % count;
    std::u16string text = cell(0, rows_[i].row);
    if (text.size() < typed.size()) continue;
    text.resize(typed.size());
    auto* letters = reinterpret_cast<wchar_t*>(text.data());
    CharLowerBuffW(letters, static_cast<DWORD>(text.size()));
    if (std::wstring_view(letters, text.size()) == typed) return static_cast<LRESULT>(i);
  }
  return -1;
}

LRESULT CALLBACK outline_control::list_procedure(HWND list, UINT message, WPARAM wparam,
                                                 LPARAM lparam, UINT_PTR, DWORD_PTR self) {
  bool handled = false;
  const LRESULT result =
      reinterpret_cast<outline_control*>(self)->on_list_message(message, wparam, lparam, handled);
  return handled ? result : DefSubclassProc(list, message, wparam, lparam);
}

LRESULT outline_control::on_list_message(UINT message, WPARAM wparam, LPARAM lparam,
                                         bool& handled) {
  if (message == close_editor_message_) {
    handled = true;
    if (editor_ && editor_->serial() == lparam) {
      const bool changed = editor_->text() != cell(editor_column_, editor_row_);
      close_editor(wparam == kKeep || (wparam == kKeepIfNew && changed));
    }
    return 0;
  }
  if (message == rebuild_message_) {
    handled = true;
    if (rebuild_posted_ && busy_ == 0) rebuild();
    return 0;
  }
  const auto focused = [this] {
    return SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  };
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      LVHITTESTINFO hit{};
      hit.pt = {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
      SendMessageW(list_, LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
      if (hit.iItem < 0) return 0;
      const std::size_t position = static_cast<std::size_t>(hit.iItem);
      const std::size_t column = static_cast<std::size_t>(std::max(hit.iSubItem, 0));
      // The expander and the box act at once, also on a second click, and leave the selection.
      if (hit.iSubItem == 0 && (hit.flags & (LVHT_ONITEMSTATEICON | LVHT_ONITEMICON)) != 0) {
        handled = true;
        SetFocus(list_);
        if ((hit.flags & LVHT_ONITEMSTATEICON) != 0) {
          toggle_expanded(position);
        } else {
          toggle_tick(position);
        }
        return 0;
      }
      if (message == WM_LBUTTONDBLCLK && position < rows_.size()) {
        const tx_custom_pointer row = rows_[position].row;
        if (editable(column, row)) {
          handled = true;
          open_editor(position, column);
        } else if (column == 0 && has_children(row)) {
          handled = true;
          toggle_expanded(position);
        }
      }
      return 0;
    }
    case WM_KEYDOWN: {
      const LRESULT focus = focused();
      if (focus < 0) return 0;
      const std::size_t position = static_cast<std::size_t>(focus);
      if (position >= rows_.size()) return 0;
      const tx_custom_pointer row = rows_[position].row;
      switch (wparam) {
        case VK_F2:
          handled = true;
          if (const auto column = first_editable(row)) open_editor(position, *column);
          return 0;
        case VK_SPACE:
          handled = true;
          toggle_tick(position);
          return 0;
        case VK_RIGHT:
        case VK_LEFT: {
          handled = true;
          const bool right = wparam == VK_RIGHT;
          std::optional<std::size_t> go;
          if (has_children(row) && expanded(row) != right) {
            toggle_expanded(position);
          } else if (right && has_children(row)) {
            go = position + 1;
          } else if (!right) {
            go = rows_.parent(position);
          }
          if (go && *go < rows_.size()) {
            // As the arrow keys move: the row reached is the one selected.
            LVITEMW none{};
            none.stateMask = LVIS_SELECTED;
            SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(-1),
                         reinterpret_cast<LPARAM>(&none));
            set_list_state(*go, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
            SendMessageW(list_, LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(*go));
            SendMessageW(list_, LVM_ENSUREVISIBLE, *go, FALSE);
          }
          return 0;
        }
        default:
          return 0;
      }
    }
    case WM_CHAR:
      if (wparam == L'+' || wparam == L'-' || wparam == L' ') {
        handled = true;
        const LRESULT focus = focused();
        if (wparam != L' ' && focus >= 0 && static_cast<std::size_t>(focus) < rows_.size()) {
          const tx_custom_pointer row = rows_[static_cast<std::size_t>(focus)].row;
          if (has_children(row) && expanded(row) != (wparam == L'+')) {
            toggle_expanded(static_cast<std::size_t>(focus));
          }
        }
      }
      return 0;
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
      // The editor stays over its cell only while the cell stays put.
      if (editor_) close_editor(editor_->text() != cell(editor_column_, editor_row_));
      return 0;
    default:
      return 0;
  }
}

}  // namespace tx::host::gui
