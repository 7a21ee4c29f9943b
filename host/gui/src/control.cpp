#include "tx_host/gui/control.h"

namespace tx::host::gui {
namespace {

constexpr wchar_t kControlsWindowClass[] = L"tx_controls_window";

// The controls come with the window's creation and are kept in its user data.
LRESULT CALLBACK controls_window_procedure(HWND window, UINT message, WPARAM wparam,
                                           LPARAM lparam) {
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lparam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
  }
  const auto* controls =
      reinterpret_cast<const std::vector<control*>*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  LRESULT result = 0;
  if (controls != nullptr) {
    for (control* c : *controls) {
      if (offer_message(*c, message, wparam, lparam, result)) return result;
    }
  }
  return DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace

bool offer_message(control& c, UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) {
  if (message == WM_NOTIFY) return c.on_notify(*reinterpret_cast<const NMHDR*>(lparam), result);
  if (message == WM_COMMAND) {
    return c.on_command(reinterpret_cast<HWND>(lparam), HIWORD(wparam), result);
  }
  return false;
}

HWND make_controls_window(const wchar_t* title, int width, int height,
                          const std::vector<control*>& controls) {
  static const ATOM registered = [] {
    WNDCLASSEXW type{};
    type.cbSize = sizeof(type);
    type.lpfnWndProc = &controls_window_procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    type.lpszClassName = kControlsWindowClass;
    return RegisterClassExW(&type);
  }();
  if (registered == 0) return nullptr;
  return CreateWindowExW(0, kControlsWindowClass, title, WS_OVERLAPPEDWINDOW, 0, 0, width, height,
                         nullptr, nullptr, GetModuleHandleW(nullptr),
                         const_cast<std::vector<control*>*>(&controls));
}

}  // namespace tx::host::gui
