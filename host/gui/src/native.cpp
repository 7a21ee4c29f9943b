#include "native.h"

#include <vector>

#include "tx_host/services/utf.h"

namespace tx::host::gui {

std::wstring wide(std::string_view text) {
  const std::u16string u = to_utf16(text);
  return std::wstring(u.begin(), u.end());
}

std::string utf8(std::wstring_view text) {
  return to_utf8(std::u16string_view(reinterpret_cast<const char16_t*>(text.data()), text.size()));
}

std::string window_text(HWND window) {
  const int length = GetWindowTextLengthW(window);
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const int got = GetWindowTextW(window, text.data(), length + 1);
  text.resize(static_cast<std::size_t>(got > 0 ? got : 0));
  return utf8(text);
}

void set_window_text(HWND window, std::string_view text) {
  SetWindowTextW(window, wide(text).c_str());
}

std::string combo_item(HWND combo, int index) {
  const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
  if (length == CB_ERR) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const LRESULT got = SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(index),
                                   reinterpret_cast<LPARAM>(text.data()));
  text.resize(got == CB_ERR ? 0 : static_cast<std::size_t>(got));
  return utf8(text);
}

HWND make_child(HWND parent, const wchar_t* window_class, std::string_view text, DWORD style,
                const metrics& m, DWORD ex_style) {
  static int next_id = 1000;
  HWND child = CreateWindowExW(
      ex_style, window_class, wide(text).c_str(), WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(next_id++)), GetModuleHandleW(nullptr), nullptr);
  if (child != nullptr) SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(m.font), FALSE);
  return child;
}

int text_width(const metrics& m, std::string_view text) {
  HDC dc = GetDC(nullptr);
  const HGDIOBJ old = SelectObject(dc, m.font);
  const std::wstring w = wide(text);
  SIZE size{};
  GetTextExtentPoint32W(dc, w.c_str(), static_cast<int>(w.size()), &size);
  SelectObject(dc, old);
  ReleaseDC(nullptr, dc);
  return size.cx;
}

void move_window(HWND window, const RECT& area) noexcept {
  MoveWindow(window, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

std::vector<HWND> windows_after(HWND parent, HWND after) {
  std::vector<HWND> found;
  HWND next = after != nullptr ? GetWindow(after, GW_HWNDNEXT) : GetWindow(parent, GW_CHILD);
  for (; next != nullptr; next = GetWindow(next, GW_HWNDNEXT)) found.push_back(next);
  return found;
}

bool marked_visible(HWND window) noexcept {
  return (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

void notify_parent(HWND control, UINT code) {
  SendMessageW(GetParent(control), WM_COMMAND,
               MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(control)), static_cast<WORD>(code)),
               reinterpret_cast<LPARAM>(control));
}

BITMAPINFO top_down_header(int width, int height) noexcept {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

HBITMAP top_down_bitmap(int width, int height, std::uint32_t** pixels) noexcept {
  const BITMAPINFO info = top_down_header(width, height);
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  *pixels = static_cast<std::uint32_t*>(bits);
  return bitmap;
}

}  // namespace tx::host::gui
