#include "screenshot.h"

#include "native.h"
#include "tx_host/gui/gdiplus_session.h"

// The GDI+ flat functions used beside starting it, as gdiplus.dll exports them.
extern "C" {
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
