// An edit box over one cell of a list, for typing a cell's new text in place. Enter keeps the
// text, Esc drops it, and the box losing the focus keeps a changed text, as a list view's own label
// editing does. The box does not act itself: it posts `close_message` to the list (wParam 1 for
// Enter, 0 for Esc, 2 for the lost focus; lParam the editor's serial number), and the list's owner
// closes it, so the box is never destroyed from inside its own window procedure.
#pragma once

#include <windows.h>

#include <string>

namespace tx::host::gui {

class cell_editor {
 public:
  // Opens over `cell` (client coordinates of `list`) showing `text`, all of it selected, and takes
  // the focus.
  cell_editor(HWND list, const RECT& cell, HFONT font, const std::u16string& text,
              UINT close_message, LPARAM serial);
  cell_editor(const cell_editor&) = delete;
  cell_editor& operator=(const cell_editor&) = delete;
  ~cell_editor();

  HWND window() const noexcept { return edit_; }
  LPARAM serial() const noexcept { return serial_; }
  std::u16string text() const;

 private:
  static LRESULT CALLBACK procedure(HWND edit, UINT message, WPARAM wparam, LPARAM lparam);
  void close(WPARAM how) const noexcept;

  HWND list_;
  HWND edit_ = nullptr;
  WNDPROC original_ = nullptr;
  UINT close_message_;
  LPARAM serial_;
};

}  // namespace tx::host::gui
