#include "platform/win32/dib.h"

#include <cstring>
#include <vector>

namespace tx::platform::win32 {
namespace {

// A header followed by room for the largest colour table GetDIBits may write (at 8 bits a
// pixel it writes 256 entries after the header).
struct bitmap_info {
  BITMAPINFOHEADER header;
  RGBQUAD colours[256];
};

BITMAPINFO* as_info(bitmap_info& info) noexcept { return reinterpret_cast<BITMAPINFO*>(&info); }

}  // namespace

std::optional<BITMAPINFOHEADER> dib_header(HDC dc, HBITMAP bitmap) noexcept {
  bitmap_info info{};
  info.header.biSize = sizeof(BITMAPINFOHEADER);
  // No bits and a depth of 0: GetDIBits fills in the header only.
  if (GetDIBits(dc, bitmap, 0, 0, nullptr, as_info(info), DIB_RGB_COLORS) == 0) {
    return std::nullopt;
  }
  return info.header;
}

bool fetch_rows(HDC dc, HBITMAP bitmap, std::int32_t bitmap_height, std::int32_t first,
                std::int32_t count, std::uint16_t bits, std::int32_t width,
                std::uint8_t* out) noexcept {
  if (width <= 0 || count <= 0 || bitmap_height <= 0 || first < 0) return false;
  bitmap_info info{};
  info.header.biSize = sizeof(BITMAPINFOHEADER);
  info.header.biWidth = width;
  // The bitmap's own height, positive: scan lines are counted from its bottom row.
  info.header.biHeight = bitmap_height;
  info.header.biPlanes = 1;
  info.header.biBitCount = bits;
  info.header.biCompression = BI_RGB;
  const std::size_t packed = static_cast<std::size_t>(width) * bits / 8;
  const std::size_t stride = (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
  try {
    if (stride == packed) {
      return GetDIBits(dc, bitmap, static_cast<UINT>(first), static_cast<UINT>(count), out,
                       as_info(info), DIB_RGB_COLORS) == count;
    }
    std::vector<std::uint8_t> padded(stride * static_cast<std::size_t>(count));
    if (GetDIBits(dc, bitmap, static_cast<UINT>(first), static_cast<UINT>(count), padded.data(),
                  as_info(info), DIB_RGB_COLORS) != count) {
      return false;
    }
    for (std::int32_t row = 0; row < count; ++row) {
      std::memcpy(out + packed * static_cast<std::size_t>(row),
                  padded.data() + stride * static_cast<std::size_t>(row), packed);
    }
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace tx::platform::win32
