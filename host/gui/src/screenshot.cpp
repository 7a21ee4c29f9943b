#include "screenshot.h"

#include "native.h"

// The few GDI+ flat functions used, as gdiplus.dll exports them.
extern "C" {
struct tx_gdiplus_startup_input {
  UINT32 version;
  void* debug_event_callback;
  BOOL suppress_background_thread;
  BOOL suppress_external_codecs;
};
int WINAPI GdiplusStartup(ULONG_PTR* token, const tx_gdiplus_startup_input* input, void* output);
void WINAPI GdiplusShutdown(ULONG_PTR token);
int WINAPI GdipCreateBitmapFromHBITMAP(HBITMAP bitmap, HPALETTE palette, void** image);
int WINAPI GdipSaveImageToFile(void* image, const WCHAR* file, const CLSID* encoder,
                               const void* parameters);
int WINAPI GdipDisposeImage(void* image);
}

namespace tx::host::gui {
namespace {

// GDI+'s PNG encoder.
constexpr CLSID kPngEncoder{
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

class gdiplus_session {
 public:
  gdiplus_session() {
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

}  // namespace

std::string save_screenshot(HWND window, const std::string& path) {
  RedrawWindow(window, nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
  RECT frame{};
  GetWindowRect(window, &frame);
  const int width = frame.right - frame.left;
  const int height = frame.bottom - frame.top;
  if (width <= 0 || height <= 0) return "the window has no size to save";
  // The window's own surface, its frame included.
  HDC source = GetWindowDC(window);
  HDC copy = CreateCompatibleDC(source);
  HBITMAP pixels = CreateCompatibleBitmap(source, width, height);
  const HGDIOBJ old = SelectObject(copy, pixels);
  const bool copied = BitBlt(copy, 0, 0, width, height, source, 0, 0, SRCCOPY) != FALSE;
  SelectObject(copy, old);
  DeleteDC(copy);
  ReleaseDC(window, source);
  std::string error;
  if (!copied) {
    error = "the window could not be copied";
  } else {
    const gdiplus_session session;
    void* image = nullptr;
    if (!session.ok() || GdipCreateBitmapFromHBITMAP(pixels, nullptr, &image) != 0) {
      error = "GDI+ could not take the picture";
    } else {
      if (GdipSaveImageToFile(image, wide(path).c_str(), &kPngEncoder, nullptr) != 0) {
        error = "cannot write " + path;
      }
      GdipDisposeImage(image);
    }
  }
  DeleteObject(pixels);
  return error;
}

}  // namespace tx::host::gui
