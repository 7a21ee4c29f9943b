// Owning holders for the Win32 handles the backend obtains, each released by its own function,
// and the module handle behind a platform::module.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

#include "platform/platform.h"

namespace tx::platform::win32 {

template <class Handle, auto Release>
struct handle_releaser {
  void operator()(Handle handle) const noexcept { Release(handle); }
};

template <class Handle, auto Release>
using unique_handle =
    std::unique_ptr<std::remove_pointer_t<Handle>, handle_releaser<Handle, Release>>;

using unique_bitmap = unique_handle<HBITMAP, &DeleteObject>;
using unique_dc = unique_handle<HDC, &DeleteDC>;
using unique_icon = unique_handle<HICON, &DestroyIcon>;
using unique_cursor = unique_handle<HCURSOR, &DestroyCursor>;

inline HMODULE native(module from) noexcept {
  return static_cast<HMODULE>(const_cast<void*>(from.handle()));
}

inline const wchar_t* wide(const char16_t* text) noexcept {
  return reinterpret_cast<const wchar_t*>(text);
}

inline wchar_t* wide(char16_t* text) noexcept { return reinterpret_cast<wchar_t*>(text); }

}  // namespace tx::platform::win32
