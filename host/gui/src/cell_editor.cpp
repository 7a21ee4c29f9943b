#include "cell_editor.h"

namespace tx::host::gui {

cell_editor::cell_editor(HWND list, const RECT& cell, HFONT font, const std::u16string& text,
                         UINT close_message, LPARAM serial)
    : list_(list), close_message_(close_message), serial_(serial) {
  edit_ = CreateWindowExW(0, L"EDIT", reinterpret_cast<const wchar_t*>(text.c_str()),
                          WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, cell.left, cell.top,
                          cell.right - cell.left, cell.bottom - cell.top, list, nullptr,
                          GetModuleHandleW(nullptr), nullptr);
  if (edit_ == nullptr) return;
  SendMessageW(edit_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  SetWindowLongPtrW(edit_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  original_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(edit_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure)));
  SendMessageW(edit_, EM_SETSEL, 0, -1);
  SetFocus(edit_);
}

cell_editor::~cell_editor() {
  if (edit_ == nullptr) return;
  // Closed already: the focus leaving the box now asks for nothing.
  SetWindowLongPtrW(edit_, GWLP_USERDATA, 0);
  SetWindowLongPtrW(edit_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
  const bool focused = GetFocus() == edit_;
  DestroyWindow(edit_);
  if (focused) SetFocus(list_);
}

std::u16string cell_editor::text() const {
  if (edit_ == nullptr) return {};
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(edit_)) + 1, u'\0');
  const int length =
      GetWindowTextW(edit_, reinterpret_cast<wchar_t*>(text.data()), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length < 0 ? 0 : length));
  return text;
}

void cell_editor::close(WPARAM how) const noexcept {
  PostMessageW(list_, close_message_, how, serial_);
}

LRESULT CALLBACK cell_editor::procedure(HWND edit, UINT message, WPARAM wparam, LPARAM lparam) {
  const auto* self = reinterpret_cast<const cell_editor*>(GetWindowLongPtrW(edit, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(edit, message, wparam, lparam);
  switch (message) {
    case WM_GETDLGCODE:
      // Enter and Esc are the box's own, not the dialog's default and cancel buttons.
      return DLGC_WANTALLKEYS | CallWindowProcW(self->original_, edit, message, wparam, lparam);
    case WM_KEYDOWN:
      if (wparam == VK_RETURN || wparam == VK_ESCAPE) {
        self->close(wparam == VK_RETURN ? 1 : 0);
        return 0;
      }
      break;
    case WM_CHAR:
      if (wparam == L'\r' || wparam == 0x1B) return 0;  // no beep for the keys taken above
      break;
    case WM_KILLFOCUS:
      self->close(2);
      break;
    default:
      break;
  }
  return CallWindowProcW(self->original_, edit, message, wparam, lparam);
}

}  // namespace tx::host::gui
