#include "message_presenter.h"

#include <cstdio>

#include "native.h"
#include "tx_host/dialog/vocabulary.h"
#include "tx_host/msgs.h"

namespace tx::host::gui {
namespace {

// A commit shorter than this shows no progress window.
constexpr ULONGLONG kProgressDelayMs = 400;
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
    if (GetTickCount64() - progress_since_ < kProgressDelayMs) return;
    // A small window over the dialog's centre, with one bar.
    RECT over{};
    GetWindowRect(dialog_, &over);
    RECT size{0, 0, 260, 48};
    AdjustWindowRectEx(&size, WS_POPUP | WS_CAPTION, FALSE, WS_EX_DLGMODALFRAME);
    const int width = size.right - size.left;
    const int height = size.bottom - size.top;
    progress_window_ =
        CreateWindowExW(WS_EX_DLGMODALFRAME, L"STATIC", L"", WS_POPUP | WS_CAPTION,
                        (over.left + over.right - width) / 2, (over.top + over.bottom - height) / 2,
                        width, height, dialog_, nullptr, GetModuleHandleW(nullptr), nullptr);
    wchar_t title[256]{};
    GetWindowTextW(dialog_, title, 256);
    SetWindowTextW(progress_window_, title);
    progress_bar_ =
        CreateWindowExW(0, PROGRESS_CLASSW, nullptr, WS_CHILD | WS_VISIBLE, 12, 14, 236, 18,
                        progress_window_, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(progress_bar_, PBM_SETRANGE32, 0, 1000);
    ShowWindow(progress_window_, SW_SHOWNA);
  }
  SendMessageW(progress_bar_, PBM_SETPOS, static_cast<WPARAM>(fraction * 1000.0), 0);
  UpdateWindow(progress_window_);
}

void message_presenter::progress_ended() {
  in_progress_ = false;
  if (progress_window_ != nullptr) DestroyWindow(progress_window_);
  progress_window_ = nullptr;
  progress_bar_ = nullptr;
}

}  // namespace tx::host::gui
