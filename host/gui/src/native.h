// Small helpers over the Win32 calls every control of the dialog window makes: UTF-8 texts in
// and out of native windows, creating a child window in the dialog font, measuring text.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tx_host/gui/control.h"

namespace tx::host::gui {

std::wstring wide(std::string_view utf8);
std::string utf8(std::wstring_view text);

// The window's text, in UTF-8.
std::string window_text(HWND window);
void set_window_text(HWND window, std::string_view utf8);
// The text of item `index` of a combo box's list, in UTF-8.
std::string combo_item(HWND combo, int index);

// A child window of `parent` in the dialog font, with a control id of its own (visible unless
// `style` says otherwise: WS_CHILD | WS_VISIBLE are added).
HWND make_child(HWND parent, const wchar_t* window_class, std::string_view text, DWORD style,
                const metrics& m, DWORD ex_style = 0);

// The width in pixels of `text` in the dialog font.
int text_width(const metrics& m, std::string_view utf8);

// Moves and sizes `window` to `area` (client coordinates of its parent).
void move_window(HWND window, const RECT& area) noexcept;

// The child windows of `parent` below `after` in its siblings' order, top first (all of them when
// `after` is null).
std::vector<HWND> windows_after(HWND parent, HWND after);

// Whether the window itself is marked shown (whatever its parent is).
bool marked_visible(HWND window) noexcept;

// A person's input as the control sends it to its parent: WM_COMMAND with `code`.
void notify_parent(HWND control, UINT code);

// The header of a top-down 32-bit bitmap (0x00RRGGBB pixels, top row first), and a DIB section
// made from it whose pixels land in `pixels` (owned by the caller; null when it failed).
BITMAPINFO top_down_header(int width, int height) noexcept;
HBITMAP top_down_bitmap(int width, int height, std::uint32_t** pixels) noexcept;

}  // namespace tx::host::gui
