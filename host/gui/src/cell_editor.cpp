#include "cell_editor.h"

namespace tx::host::gui {
namespace {

// The characters Enter and Esc type: the box takes those keys itself, so they must not beep.
constexpr WPARAM kReturnCharacter = L'\r';
constexpr WPARAM kEscapeCharacter = 0x1B;

}  // namespace

cell_editor::cell_editor(HWND list, const RECT& cell, HFONT font, const std::u16string& text,
                         UINT close_message, LPARAM serial)
    : list_(list),
      close_message_(close_message),
      serial_(serial),
      edit_(CreateWindowExW(0, L"EDIT", reinterpret_cast<const wchar_t*>(text.c_str()),
                            WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, cell.left, cell.top,
                            cell.right - cell.left, cell.bottom - cell.top, list, nullptr,
                            GetModuleHandleW(nullptr), nullptr)) {
  if (!edit_) return;
  SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  subclass_ = window_subclass(window(), [this](UINT message, WPARAM wparam, LPARAM lparam) {
    return on_message(message, wparam, lparam);
  });
  SendMessageW(window(), EM_SETSEL, 0, -1);
  SetFocus(window());
}

cell_editor::~cell_editor() {
  if (!edit_) return;
  subclass_ = window_subclass();
  const bool focused = GetFocus() == window();
  edit_.reset();
  if (focused) SetFocus(list_);
}

std::u16string cell_editor::text() const {
  if (!edit_) return {};
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window())) + 1, u'\0');
  const int length = GetWindowTextW(window(), reinterpret_cast<wchar_t*>(text.data()),
                                    static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length < 0 ? 0 : length));
  return text;
}

void cell_editor::close(editor_close how) const noexcept {
  PostMessageW(list_, close_message_, static_cast<WPARAM>(how), serial_);
}

std::optional<LRESULT> cell_editor::on_message(UINT message, WPARAM wparam, LPARAM lparam) const {
  switch (message) {
    case WM_GETDLGCODE:
      // Enter and Esc are the box's own, not the dialog's default and cancel buttons.
      return DLGC_WANTALLKEYS | window_subclass::pass_on(window(), message, wparam, lparam);
    case WM_KEYDOWN:
      if (wparam == VK_RETURN || wparam == VK_ESCAPE) {
        close(wparam == VK_RETURN ? editor_close::keep : editor_close::drop);
        return 0;
      }
      return std::nullopt;
    case WM_CHAR:
      if (wparam == kReturnCharacter || wparam == kEscapeCharacter) return 0;
      return std::nullopt;
    case WM_KILLFOCUS:
      close(editor_close::keep_if_changed);
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace tx::host::gui
