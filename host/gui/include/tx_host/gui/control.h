// One native control of the dialog window (txhost --gui), standing for one leaf element of the
// plug-in's dialog: a field, a label, a picture, an outline or a toolbar. The window builds one
// for each leaf it shows (layouts and group boxes are the window's own), places it, routes the
// notifications of its native windows to it, asks it to read its element again when the plug-in
// tells of a change, and asks it for its lines when a script prints. A control keeps nothing of
// its element beyond what its native windows show; every user action goes back to the element
// through the element's own interface.
#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tx_host/dialog/vocabulary.h"
#include "tx_host/window_logic/dialog_units.h"

namespace tx::host::gui {

// The dialog font and the lengths derived from it. Dialog units (a quarter of the average
// character width across, an eighth of the font's height down) are how Windows dialogs are laid
// out, so the window looks right in any font size.
struct metrics {
  HFONT font = nullptr;       // the system dialog font; borrowed, the window owns it
  HFONT bold_font = nullptr;  // the same, bold (emphasized outline cells); borrowed
  int base_x = 8;             // average character width, pixels
  int base_y = 16;            // character height, pixels
  int dlu_x(int units) const noexcept { return window_logic::dialog_units_x(units, base_x); }
  int dlu_y(int units) const noexcept { return window_logic::dialog_units_y(units, base_y); }
};

// What a control asks of the layout: its smallest comfortable size, and whether it takes extra
// room when the window grows.
struct size_request {
  int width = 0;
  int height = 0;
  bool grows_across = false;
  bool grows_down = false;
};

class control {
 public:
  control(const control&) = delete;
  control& operator=(const control&) = delete;
  virtual ~control() = default;

  virtual size_request request(const metrics& m) const = 0;
  // Moves the control's native windows into `area` (client coordinates of its parent).
  virtual void place(const RECT& area) = 0;
  virtual void show(bool shown) = 0;
  // Reads the element again; `changes` are the TX_CHANGED_* bits the plug-in told.
  virtual void refresh(std::uint32_t changes) = 0;
  // WM_COMMAND and WM_NOTIFY of the parent, offered to every control; true when this control
  // handled it (then `result` is the answer).
  virtual bool on_command(HWND from, UINT code, LRESULT& result) {
    (void)from, (void)code, (void)result;
    return false;
  }
  virtual bool on_notify(const NMHDR& header, LRESULT& result) {
    (void)header, (void)result;
    return false;
  }
  // A field (check box, drop-down, integer or text input): numbered when printed.
  virtual bool is_field() const noexcept { return false; }
  // Appends the lines `print` writes for this control, in the text host's form (a field without
  // its number), read from the native windows, not from the element.
  virtual void print(std::vector<std::string>& lines, const dialog::vocabulary& words) const = 0;

 protected:
  control() = default;
};

// Offers the parent's WM_COMMAND or WM_NOTIFY (`message` with its parameters) to `c`: true when
// `c` handled it, with `result` its answer. Any other message is no control's.
bool offer_message(control& c, UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);

// A plain top-level window of the dialog's colour, `width` × `height` and not yet shown, that
// offers its WM_COMMAND and WM_NOTIFY to the controls in `controls` (which must outlive it): where
// the window benchmark and the window tests place controls of their own. Null when no window can
// be made (no display).
HWND make_controls_window(const wchar_t* title, int width, int height,
                          const std::vector<control*>& controls);

}  // namespace tx::host::gui
