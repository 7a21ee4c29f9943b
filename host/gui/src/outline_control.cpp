// The outline control's creation, sizing and the changes the plug-in tells.
#include "outline_control.h"

#include <algorithm>

#include "outline_action_scope.h"
#include "tx/toolkit/element.h"

namespace tx::host::gui {
namespace {

// Each column's width before the list is first placed, in dialog units.
constexpr int kFirstColumnWidth = 80;
// Room for two columns of long Russian names and a screenful of rows, in dialog units.
constexpr int kWidth = 320;
constexpr int kHeight = 190;
// The least height the list may be given when the window is made smaller: a few rows.
constexpr int kLeastHeight = 60;
// The first column holds the expander, the box and the old name: a tenth more than the others.
constexpr int kFirstColumnTenths = 11;

const wchar_t* as_wide(const std::u16string& text) noexcept {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

}  // namespace

outline_control::action_scope::~action_scope() {
  if (--control_.busy_ > 0 || !control_.rows_pending_) return;
  if (from_list_) {
    if (!control_.rebuild_posted_) {
      PostMessageW(control_.list(), control_.rebuild_message_, 0, 0);
    }
    control_.rebuild_posted_ = true;
    return;
  }
  control_.rows_pending_ = false;
  control_.rebuild();
}

outline_control::outline_control(HWND parent, tx_custom_pointer outline, const metrics& m)
    : reader_(outline),
      font_(m.font),
      bold_font_(m.bold_font != nullptr ? m.bold_font : m.font),
      images_(GetSystemMetrics(SM_CXSMICON)),
      rows_(outline),
      close_editor_message_(RegisterWindowMessageW(L"tx_host_outline_close_editor")),
      rebuild_message_(RegisterWindowMessageW(L"tx_host_outline_rebuild")) {
  bool any_header = false;
  for (std::size_t c = 0; c < reader_.columns().size(); ++c) {
    any_header = any_header || reader_.wide_header(c).has_value();
  }
  DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA |
                LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
  if (!any_header) style |= LVS_NOCOLUMNHEADER;
  list_.reset(CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"", style, 0, 0, 0, 0, parent,
                              nullptr, GetModuleHandleW(nullptr), nullptr));
  if (!list_) return;
  SendMessageW(list(), WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
  const DWORD extended = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
  SendMessageW(list(), LVM_SETEXTENDEDLISTVIEWSTYLE, extended, extended);
  SendMessageW(list(), LVM_SETIMAGELIST, LVSIL_STATE,
               reinterpret_cast<LPARAM>(images_.expanders()));
  // The boxes are the small images; without boxes they still set the indentation's step.
  SendMessageW(list(), LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images_.boxes()));
  // The expander comes from the rows, asked when drawn; selection and focus are the list's.
  SendMessageW(list(), LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK, 0);
  const std::size_t shown_columns = std::max<std::size_t>(reader_.columns().size(), 1);
  for (std::size_t c = 0; c < shown_columns; ++c) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = const_cast<wchar_t*>(L"");
    column.cx = m.dlu_x(kFirstColumnWidth);
    column.iSubItem = static_cast<int>(c);
    SendMessageW(list(), LVM_INSERTCOLUMNW, c, reinterpret_cast<LPARAM>(&column));
  }
  read_headers();
  subclass_ = window_subclass(list(), [this](UINT message, WPARAM wparam, LPARAM lparam) {
    return on_list_message(message, wparam, lparam);
  });
  rebuild();
}

outline_control::~outline_control() {
  // What the list tells while it goes is not handed to the rows.
  syncing_ = true;
}

void outline_control::read_headers() {
  for (std::size_t c = 0; c < reader_.columns().size(); ++c) {
    const std::u16string header = reader_.wide_header(c).value_or(u"");
    LVCOLUMNW item{};
    item.mask = LVCF_TEXT;
    item.pszText = const_cast<wchar_t*>(as_wide(header));
    SendMessageW(list(), LVM_SETCOLUMNW, c, reinterpret_cast<LPARAM>(&item));
  }
}

size_request outline_control::request(const metrics& m) const {
  return {m.dlu_x(kWidth), m.dlu_y(kHeight), true, true};
}

void outline_control::place(const RECT& area) {
  MoveWindow(list(), area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
  RECT client{};
  GetClientRect(list(), &client);
  const int width = client.right - GetSystemMetrics(SM_CXVSCROLL);
  if (width == width_ || width <= 0) return;
  const bool first_time = width_ == 0;
  width_ = width;
  const int columns = static_cast<int>(std::max<std::size_t>(reader_.columns().size(), 1));
  if (!first_time) {
    // Widths the user set stay: the last column alone takes what the window gained or lost.
    int others = 0;
    for (int c = 0; c + 1 < columns; ++c) {
      others += static_cast<int>(SendMessageW(list(), LVM_GETCOLUMNWIDTH, c, 0));
    }
    const int least = GetSystemMetrics(SM_CXSMICON) * 2;
    SendMessageW(list(), LVM_SETCOLUMNWIDTH, columns - 1, std::max(width - others, least));
    return;
  }
  const int first = columns == 1 ? width : width * kFirstColumnTenths / (10 * columns);
  const int rest = columns == 1 ? 0 : (width - first) / (columns - 1);
  for (int c = 0; c < columns; ++c) {
    SendMessageW(list(), LVM_SETCOLUMNWIDTH, c, c == 0 ? first : rest);
  }
}

int outline_control::least_height(const metrics& m) { return m.dlu_y(kLeastHeight); }

void outline_control::show(bool shown) { ShowWindow(list(), shown ? SW_SHOW : SW_HIDE); }

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
    InvalidateRect(list(), nullptr, TRUE);
  }
}

}  // namespace tx::host::gui
