#include "tx_host/gui/control.h"

namespace tx::host::gui {

bool offer_to_controls(std::span<control* const> controls, UINT message, WPARAM wparam,
                       LPARAM lparam, LRESULT& result) {
  for (control* c : controls) {
    if (message == WM_NOTIFY && c->on_notify(*reinterpret_cast<const NMHDR*>(lparam), result)) {
      return true;
    }
    if (message == WM_COMMAND &&
        c->on_command(reinterpret_cast<HWND>(lparam), HIWORD(wparam), result)) {
      return true;
    }
  }
  return false;
}

}  // namespace tx::host::gui
