// An edit box over one cell of a list, for typing a cell's new text in place. Enter keeps the
// text, Esc drops it, and the box losing the focus keeps a changed text, as a list view's own
// label editing does. The box does not act itself: it posts `close_message` to the list (wParam
// an editor_close, lParam the editor's serial number), and the list's owner closes it, so the box
// is never destroyed from inside its own window procedure.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "win32_handles.h"

namespace tx::host::gui {

// How the box asks to be closed.
enum class editor_close : WPARAM {
  drop = 0,             // Esc
  keep = 1,             // Enter
  keep_if_changed = 2,  // the focus left the box
};

class cell_editor {
 public:
  // Opens over `cell` (client coordinates of `list`) showing `text`, all of it selected, and takes
  // the focus.
  cell_editor(HWND list, const RECT& cell, HFONT font, const std::u16string& text,
              UINT close_message, LPARAM serial);
  cell_editor(const cell_editor&) = delete;
  cell_editor& operator=(const cell_editor&) = delete;
  ~cell_editor();

  HWND window() const noexcept { return edit_.get(); }
  LPARAM serial() const noexcept { return serial_; }
  std::u16string text() const;

 private:
  std::optional<LRESULT> on_message(UINT message, WPARAM wparam, LPARAM lparam) const;
  void close(editor_close how) const noexcept;

  HWND list_;
  UINT close_message_;
  LPARAM serial_;
  unique_window edit_;
  // Removed before the box is destroyed: its closing asks for nothing.
  window_subclass subclass_;
};

}  // namespace tx::host::gui
