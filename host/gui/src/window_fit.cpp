// The dialog window's size and arrangement: as large as its content asks (and never smaller),
// the content laid out inside the margins, the buttons in a row at the bottom right.
#include <algorithm>

#include "dialog_window.h"
#include "native.h"
#include "outline_control.h"
#include "window_access_keys.h"
#include "window_constants.h"

namespace tx::host::gui {
namespace {

int button_width(const metrics& m, HWND button) {
  return std::max(m.dlu_x(kButtonWidthDlu),
                  text_width(m, caption_text(button)) + m.dlu_x(kButtonTextRoomDlu));
}

}  // namespace

size_request dialog_window::content_request() const { return request(*root_, metrics_); }

void dialog_window::fit() {
  const metrics& m = metrics_;
  const size_request content = content_request();
  int buttons_width = 0;
  for (const auto& [shown_button, index] : buttons_shown_) {
    (void)index;
    buttons_width += button_width(m, shown_button) + (buttons_width > 0 ? m.dlu_x(layout_gap) : 0);
  }
  const int button_row =
      buttons_shown_.empty() ? 0 : m.dlu_y(kMarginDlu) + m.dlu_y(kButtonHeightDlu);
  RECT wanted{0, 0, std::max(content.width, buttons_width) + 2 * m.dlu_x(kMarginDlu),
              content.height + button_row + 2 * m.dlu_y(kMarginDlu)};
  AdjustWindowRectEx(&wanted, static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE)), FALSE,
                     static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_EXSTYLE)));
  const SIZE opening{wanted.right - wanted.left, wanted.bottom - wanted.top};
  // The window may be made lower than it opens, down to a few rows of the list; every text keeps
  // its room across.
  const outline_control* list = outline();
  const int spare =
      list != nullptr ? std::max(0, list->request(m).height - outline_control::least_height(m)) : 0;
  minimum_ = {opening.cx, opening.cy - spare};
  RECT now{};
  GetWindowRect(window_, &now);
  const bool first = !IsWindowVisible(window_);
  const int width = first ? opening.cx : std::max<int>(now.right - now.left, minimum_.cx);
  const int height = first ? opening.cy : std::max<int>(now.bottom - now.top, minimum_.cy);
  if (first) {
    // Centred on the screen's work area, as a dialog without a visible owner opens.
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    SetWindowPos(window_, nullptr,
                 work.left + std::max<int>(0, (work.right - work.left - width) / 2),
                 work.top + std::max<int>(0, (work.bottom - work.top - height) / 2), width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  } else if (width != now.right - now.left || height != now.bottom - now.top) {
    SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

void dialog_window::layout() {
  const metrics& m = metrics_;
  RECT client{};
  GetClientRect(window_, &client);
  const int margin_x = m.dlu_x(kMarginDlu);
  const int margin_y = m.dlu_y(kMarginDlu);
  const int button_height = m.dlu_y(kButtonHeightDlu);
  const int button_row = buttons_shown_.empty() ? 0 : margin_y + button_height;
  place(*root_,
        RECT{client.left + margin_x, client.top + margin_y, client.right - margin_x,
             client.bottom - margin_y - button_row},
        m);
  // The buttons at the bottom right, in the box's order.
  int right = client.right - margin_x;
  for (auto it = buttons_shown_.rbegin(); it != buttons_shown_.rend(); ++it) {
    const int width = button_width(m, it->first);
    MoveWindow(it->first, right - width, client.bottom - margin_y - button_height, width,
               button_height, TRUE);
    right -= width + m.dlu_x(layout_gap);
  }
  InvalidateRect(window_, nullptr, TRUE);
}

}  // namespace tx::host::gui
