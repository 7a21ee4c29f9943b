#include "message_presenter.h"

#include <algorithm>
#include <cstdio>

#include "native.h"
#include "tx_host/dialog/vocabulary.h"
#include "tx_host/msgs.h"

namespace tx::host::gui {
namespace {

// How often a shown box is looked for while a script runs.
constexpr UINT kLookMs = 30;

// The box a script waits on: the dialog it must stand over and the text it must show.
struct awaited_box {
  HWND owner = nullptr;
  std::wstring text;
  bool seen = false;
};
awaited_box* awaited = nullptr;

BOOL CALLBACK find_box(HWND window, LPARAM) {
  wchar_t name[16]{};
  GetClassNameW(window, name, 16);
  if (std::wstring_view(name) != L"#32770" || GetWindow(window, GW_OWNER) != awaited->owner) {
    return TRUE;
  }
  wchar_t shown[1024]{};
  GetDlgItemTextW(window, 0xFFFF, shown, 1024);
  if (!IsWindowVisible(window) || awaited->text != shown) {
    const std::string line = "txhost: the warning box does not show the warning over the dialog\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
  }
  awaited->seen = true;
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
  return FALSE;
}

void CALLBACK look_for_box(HWND, UINT, UINT_PTR, DWORD) {
  if (awaited != nullptr && !awaited->seen) EnumThreadWindows(GetCurrentThreadId(), &find_box, 0);
}

// A plain frame in the dialog's colour for the bar: a window class of its own, since the
// system's classes draw their text or their own frame in the client area.
const wchar_t* progress_window_class() {
  static const wchar_t* const name = [] {
    WNDCLASSEXW type{};
    type.cbSize = sizeof(type);
    type.lpfnWndProc = &DefWindowProcW;
    type.hInstance = GetModuleHandleW(nullptr);
    // The wait cursor (IDC_WAIT): the dialog takes no input until the commit ends.
    type.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32514));
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    type.lpszClassName = L"tx_progress_window";
    RegisterClassExW(&type);
    return type.lpszClassName;
  }();
  return name;
}

// The dialog units of `window`'s font (the average character's width and height).
metrics units_of(HWND window) {
  metrics m;
  HFONT font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  if (font == nullptr) font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
  HDC dc = GetDC(window);
  const HGDIOBJ old = SelectObject(dc, font);
  TEXTMETRICW text{};
  GetTextMetricsW(dc, &text);
  constexpr wchar_t kAlphabet[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  SIZE all{};
  GetTextExtentPoint32W(dc, kAlphabet, 52, &all);
  SelectObject(dc, old);
  ReleaseDC(window, dc);
  m.base_x = std::max<int>((all.cx / 26 + 1) / 2, 1);
  m.base_y = std::max<int>(text.tmHeight, 1);
  return m;
}

// The width of `text` in the font of window captions.
int caption_text_width(const wchar_t* text) {
  NONCLIENTMETRICSW system{};
  system.cbSize = sizeof(system);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(system), &system, 0);
  HFONT font = CreateFontIndirectW(&system.lfCaptionFont);
  HDC dc = GetDC(nullptr);
  const HGDIOBJ old = SelectObject(dc, font);
  SIZE size{};
  GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
  SelectObject(dc, old);
  ReleaseDC(nullptr, dc);
  DeleteObject(font);
  return size.cx;
}

void show_warning(void* self, const char16_t* text) {
  static_cast<message_presenter*>(self)->warning(text);
}
void started(void* self, const void*) { static_cast<message_presenter*>(self)->progress_started(); }
void reported(void* self, const void*, double fraction) {
  static_cast<message_presenter*>(self)->progress_reported(fraction);
}
void ended(void* self, const void*) { static_cast<message_presenter*>(self)->progress_ended(); }

}  // namespace

message_presenter::message_presenter(HWND dialog, std::int32_t language_offset, bool dismiss)
    : dialog_(dialog), language_(language_offset), dismiss_(dismiss) {
  const tx_host_msgs_presenter shown{this, &show_warning, &started, &reported, &ended};
  tx_host_msgs_set_presenter(&shown);
}

message_presenter::~message_presenter() {
  tx_host_msgs_set_presenter(nullptr);
  if (progress_window_ != nullptr) DestroyWindow(progress_window_);
}

void message_presenter::warning(const char16_t* text) {
  const std::wstring message(reinterpret_cast<const wchar_t*>(text));
  const std::wstring title = wide(dialog::vocabulary_for(language_).warning);
  awaited_box box{dialog_, message};
  UINT_PTR timer = 0;
  if (dismiss_) {
    awaited = &box;
    timer = SetTimer(nullptr, 0, kLookMs, &look_for_box);
  }
  MessageBoxW(dialog_, message.c_str(), title.c_str(), MB_OK | MB_ICONWARNING);
  if (dismiss_) {
    KillTimer(nullptr, timer);
    awaited = nullptr;
  }
}

void message_presenter::progress_started() {
  in_progress_ = true;
  progress_since_ = GetTickCount64();
}

void message_presenter::progress_reported(double fraction) {
  if (!in_progress_) return;
  if (progress_window_ == nullptr) {
    if (GetTickCount64() - progress_since_ < progress_delay_ms) return;
    show_progress_window();
  }
  SendMessageW(progress_bar_, PBM_SETPOS, static_cast<WPARAM>(fraction * 1000.0), 0);
  UpdateWindow(progress_window_);
}

void message_presenter::show_progress_window() {
  // Sized in the dialog's units: margins of 7 and a bar 10 high, as wide as a message box and
  // at least as wide as the caption (the dialog's title) needs.
  const metrics m = units_of(dialog_);
  wchar_t title[256]{};
  GetWindowTextW(dialog_, title, 256);
  const int margin_x = m.dlu_x(7);
  const int margin_y = m.dlu_y(7);
  const int bar_height = m.dlu_y(10);
  const int caption_width = caption_text_width(title) + 2 * GetSystemMetrics(SM_CXSIZE);
  const int width = std::max(m.dlu_x(200), caption_width);
  constexpr DWORD style = WS_POPUP | WS_CAPTION;
  constexpr DWORD ex_style = WS_EX_DLGMODALFRAME;
  RECT frame{0, 0, width, bar_height + 2 * margin_y};
  AdjustWindowRectEx(&frame, style, FALSE, ex_style);
  const int frame_width = frame.right - frame.left;
  const int frame_height = frame.bottom - frame.top;
  // Over the dialog's centre.
  RECT over{};
  GetWindowRect(dialog_, &over);
  progress_window_ = CreateWindowExW(
      ex_style, progress_window_class(), title, style, (over.left + over.right - frame_width) / 2,
      (over.top + over.bottom - frame_height) / 2, frame_width, frame_height, dialog_, nullptr,
      GetModuleHandleW(nullptr), nullptr);
  progress_bar_ = CreateWindowExW(0, PROGRESS_CLASSW, nullptr, WS_CHILD | WS_VISIBLE, margin_x,
                                  margin_y, width - 2 * margin_x, bar_height, progress_window_,
                                  nullptr, GetModuleHandleW(nullptr), nullptr);
  SendMessageW(progress_bar_, PBM_SETRANGE32, 0, 1000);
  ShowWindow(progress_window_, SW_SHOWNA);
}

void message_presenter::progress_ended() {
  in_progress_ = false;
  if (progress_window_ != nullptr) DestroyWindow(progress_window_);
  progress_window_ = nullptr;
  progress_bar_ = nullptr;
}

}  // namespace tx::host::gui
