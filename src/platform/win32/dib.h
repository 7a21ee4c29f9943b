// Reading a bitmap's rows as a device-independent bitmap with GetDIBits.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

namespace tx::platform::win32 {

// The header of `bitmap`: its width, its height (negative when top-down) and its depth.
std::optional<BITMAPINFOHEADER> dib_header(HDC dc, HBITMAP bitmap) noexcept;

// Rows `first` to `first + count - 1` of `bitmap` (counted from its bottom row; the bitmap is
// `bitmap_height` rows tall) at `bits` per pixel, written to `out` bottom row first and packed
// (width × bits / 8 bytes a row, where GetDIBits pads rows to four bytes). True when every row
// was read.
bool fetch_rows(HDC dc, HBITMAP bitmap, std::int32_t bitmap_height, std::int32_t first,
                std::int32_t count, std::uint16_t bits, std::int32_t width,
                std::uint8_t* out) noexcept;

}  // namespace tx::platform::win32
