// Checks the screenshots the window cases saved: each PNG in the folder decodes (through GDI+,
// as it was written), is as large as a dialog and at most the screen, and is not one colour
// (a window that drew nothing). Prints one line per file; the exit status counts the failures.
#include <windows.h>

#include <cstdio>
#include <string>

#include "tx_host/gui/gdiplus_session.h"

// The GDI+ flat functions used beside starting it, as gdiplus.dll exports them.
extern "C" {
int WINAPI GdipCreateBitmapFromFile(const WCHAR* file, void** bitmap);
int WINAPI GdipGetImageWidth(void* image, UINT* width);
int WINAPI GdipGetImageHeight(void* image, UINT* height);
int WINAPI GdipBitmapGetPixel(void* bitmap, INT x, INT y, DWORD* colour);
int WINAPI GdipDisposeImage(void* image);
}

namespace {

// The least a dialog window measures, and the virtual screen it is shown on.
constexpr UINT kLeastWidth = 320;
constexpr UINT kLeastHeight = 200;
constexpr UINT kScreenWidth = 1280;
constexpr UINT kScreenHeight = 1024;

// What is wrong with the picture at `path`; empty when nothing is.
std::string check(const std::wstring& path) {
  void* image = nullptr;
  if (GdipCreateBitmapFromFile(path.c_str(), &image) != 0) return "does not decode";
  UINT width = 0;
  UINT height = 0;
  GdipGetImageWidth(image, &width);
  GdipGetImageHeight(image, &height);
  std::string wrong;
  if (width < kLeastWidth || height < kLeastHeight || width > kScreenWidth ||
      height > kScreenHeight) {
    wrong = "is " + std::to_string(width) + "x" + std::to_string(height) +
            ", not the size of a dialog window";
  } else {
    DWORD first = 0;
    GdipBitmapGetPixel(image, 0, 0, &first);
    bool varied = false;
    for (UINT y = 0; y < height && !varied; y += 3) {
      for (UINT x = 0; x < width && !varied; x += 3) {
        DWORD colour = 0;
        GdipBitmapGetPixel(image, static_cast<INT>(x), static_cast<INT>(y), &colour);
        varied = colour != first;
      }
    }
    if (!varied) wrong = "is blank (one colour)";
  }
  GdipDisposeImage(image);
  return wrong;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) {
    std::fputs("usage: tx_screenshot_check FOLDER\n", stderr);
    return 2;
  }
  const tx::host::gui::gdiplus_session session;
  if (!session.ok()) return 2;
  const std::wstring folder = argv[1];
  WIN32_FIND_DATAW found{};
  HANDLE search = FindFirstFileW((folder + L"/*.png").c_str(), &found);
  int checked = 0;
  int failed = 0;
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::wstring name = found.cFileName;
      const std::string wrong = check(folder + L"/" + name);
      ++checked;
      std::string shown(name.begin(), name.end());
      if (!wrong.empty()) {
        ++failed;
        std::printf("%s %s\n", shown.c_str(), wrong.c_str());
      } else {
        std::printf("%s ok\n", shown.c_str());
      }
    } while (FindNextFileW(search, &found));
    FindClose(search);
  }
  if (checked == 0) {
    std::puts("no screenshots were saved");
    return 1;
  }
  return failed;
}
