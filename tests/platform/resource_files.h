// The resource files of the plug-in and of txk_basic, read straight from the source tree as the
// expected values of the loaders. The readers accept only the fixed formats that
// tools/draw_bitmaps.py writes, so they stay independent of the loaders they check.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tx::test {

// The file's bytes; empty when it cannot be read.
std::vector<std::uint8_t> read_file(const std::string& path);

std::string plugin_resource(const std::string& name);  // src/resources/<name>
std::string basic_resource(const std::string& name);   // host/basic/resources/<name>

using bgr = std::array<std::uint8_t, 3>;

// A 24-bit .bmp: its pixels' blue, green and red, bottom row first.
struct bmp_picture {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::vector<bgr> pixels;

  const bgr& at(std::int32_t x, std::int32_t row_from_bottom) const {
    return pixels[static_cast<std::size_t>(row_from_bottom * width + x)];
  }
};
std::optional<bmp_picture> read_bmp24(const std::string& path);

// A one-image .ico (24-bit colour) or .cur (1-bit black and white): the colour of each pixel,
// whether its AND bit is set, bottom row first, and the hot spot the file gives (a cursor's).
struct icon_picture {
  std::int32_t width = 0;
  std::int32_t hot_x = 0;
  std::int32_t hot_y = 0;
  std::vector<bgr> colour;
  std::vector<bool> and_mask;
};
std::optional<icon_picture> read_icon(const std::string& path);

}  // namespace tx::test
