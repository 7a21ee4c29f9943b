// Saves what a window shows, its whole frame, as a PNG through the platform's own encoder
// (GDI+).
#pragma once

#include <windows.h>

#include <string>

namespace tx::host::gui {

// The error, empty when the file was written.
std::string save_screenshot(HWND window, const std::string& path);

}  // namespace tx::host::gui
