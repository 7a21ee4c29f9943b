// GDI+ started for as long as an object lives, through the flat functions gdiplus.dll exports
// (the C++ wrapper headers are not needed): the window's screenshots and the tool that checks
// them both decode and encode pictures through it.
#pragma once

#include <windows.h>

extern "C" {
struct tx_gdiplus_startup_input {
  UINT32 version;
  void* debug_event_callback;
  BOOL suppress_background_thread;
  BOOL suppress_external_codecs;
};
int WINAPI GdiplusStartup(ULONG_PTR* token, const tx_gdiplus_startup_input* input, void* output);
void WINAPI GdiplusShutdown(ULONG_PTR token);
}

namespace tx::host::gui {

class gdiplus_session {
 public:
  gdiplus_session() noexcept {
    const tx_gdiplus_startup_input input{1, nullptr, FALSE, FALSE};
    ok_ = GdiplusStartup(&token_, &input, nullptr) == 0;
  }
  ~gdiplus_session() {
    if (ok_) GdiplusShutdown(token_);
  }
  gdiplus_session(const gdiplus_session&) = delete;
  gdiplus_session& operator=(const gdiplus_session&) = delete;
  bool ok() const noexcept { return ok_; }

 private:
  ULONG_PTR token_ = 0;
  bool ok_ = false;
};

}  // namespace tx::host::gui
