// Reading the device-independent bitmaps inside .bmp, .ico and .cur files, checked against the
// bytes that hold them: a damaged file reads as nothing, never past its end.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace tx::platform::posix {

// A bitmap's pixels in place. Uncompressed, 1, 4, 8, 24 or 32 bits a pixel.
struct dib {
  std::int32_t width = 0;
  std::int32_t rows = 0;
  bool top_down = false;
  std::uint16_t bits = 0;
  std::span<const std::uint8_t> palette;  // four bytes an entry: blue, green, red, reserved
  std::span<const std::uint8_t> pixels;
  std::size_t stride = 0;  // bytes a stored row, padded to four

  // The palette index of pixel `x` of `row` (rows counted from the bottom of the image) in a
  // bitmap of 8 bits a pixel or fewer.
  std::uint8_t index(std::int32_t x, std::int32_t row) const noexcept;
  // Blue, green, red and fourth byte of that pixel, as GetDIBits gives it at 32 bits a pixel: the
  // fourth byte is the pixel's own at 32 bits a pixel and 0 otherwise.
  std::array<std::uint8_t, 4> bgrx(std::int32_t x, std::int32_t row) const noexcept;
};

// The bitmap of a .bmp file.
std::optional<dib> read_bmp_file(std::span<const std::uint8_t> file) noexcept;

// The image of an .ico or .cur file that Windows loads at the default size of 32 × 32: the
// colour (XOR) bitmap, the 1-bit AND mask of the same size, and the hot spot (the centre of an
// icon; a cursor's own).
struct icon_image {
  dib colour;
  dib mask;
  std::int32_t hot_x = 0;
  std::int32_t hot_y = 0;
};

std::optional<icon_image> read_icon_file(std::span<const std::uint8_t> file, bool cursor) noexcept;

}  // namespace tx::platform::posix
