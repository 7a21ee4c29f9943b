// The dialog window's message loops and its dialog procedure. What the plug-in told is read by
// the loops, after the message in hand has been handled: a nested loop (a message box's, while
// the plug-in's call that shows it still runs) only wakes them.
#include "dialog_window.h"
#include "window_constants.h"

namespace tx::host::gui {

void dialog_window::deliver(MSG& message) {
  // An access key first: the dialog manager would take a tool's for no control's.
  if (!take_access_key(message) && (window_ == nullptr || !IsDialogMessageW(window_, &message))) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  refresh_pending();
}

void dialog_window::pump() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // For the loop outside, which ends on it.
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    deliver(message);
  }
  refresh_pending();
}

std::int32_t dialog_window::run_modal() {
  refresh_pending();
  MSG message{};
  while (!closed_with_) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got == 0) {
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    if (got < 0) break;
    deliver(message);
  }
  return closed_with_.value_or(-1);
}

INT_PTR CALLBACK dialog_window::procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, l);
    return TRUE;
  }
  auto* self = reinterpret_cast<dialog_window*>(GetWindowLongPtrW(window, DWLP_USER));
  if (self == nullptr) return FALSE;
  return self->handle_message(message, w, l);
}

INT_PTR dialog_window::handle_message(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND: {
      const int id = LOWORD(w);
      HWND from = reinterpret_cast<HWND>(l);
      for (const auto& [shown_button, index] : buttons_shown_) {
        if (from == shown_button || (from == nullptr && id == kFirstButtonId + index)) {
          if (HIWORD(w) == BN_CLICKED) press(index);
          return TRUE;
        }
      }
      if (id == IDOK && from == nullptr) {
        return TRUE;  // Enter outside a button: the dialog has no default button to press
      }
      if (id == IDCANCEL && (from == nullptr || GetParent(from) != window_)) {
        press(-1);  // Esc acts as the frame's close box
        return TRUE;
      }
      [[fallthrough]];
    }
    case WM_NOTIFY: {
      if (root_ == nullptr) return FALSE;
      LRESULT result = 0;
      bool handled = false;
      auto offer = [&](auto&& self, const window_node& node) -> void {
        if (node.leaf) handled = offer_message(*node.leaf, message, w, l, result);
        for (auto it = node.children.begin(); !handled && it != node.children.end(); ++it) {
          self(self, **it);
        }
      };
      offer(offer, *root_);
      if (message == WM_COMMAND) return TRUE;
      if (!handled) return FALSE;
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, result);
      return TRUE;
    }
    case WM_CLOSE:
      press(-1);
      return TRUE;
    case WM_SIZE:
      if (root_ != nullptr) layout();
      return TRUE;
    case WM_GETMINMAXINFO: {
      auto* info = reinterpret_cast<MINMAXINFO*>(l);
      info->ptMinTrackSize = {minimum_.cx, minimum_.cy};
      return TRUE;
    }
    case kWakeForChanges:
      // Read by the loop that delivered this (or, from a nested loop, by the window's own loop
      // once the plug-in's call returns).
      wake_posted_ = false;
      return TRUE;
    default:
      return FALSE;
  }
}

}  // namespace tx::host::gui
