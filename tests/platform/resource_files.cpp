#include "resource_files.h"

#include <fstream>
#include <iterator>

namespace tx::test {
namespace {

std::uint32_t le(const std::vector<std::uint8_t>& bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i) value |= std::uint32_t{bytes.at(at + i)} << (8 * i);
  return value;
}

bool bit(const std::vector<std::uint8_t>& bytes, std::size_t row_at, std::int32_t x) {
  return ((bytes.at(row_at + static_cast<std::size_t>(x / 8)) >> (7 - x % 8)) & 1) != 0;
}

}  // namespace

std::vector<std::uint8_t> read_file(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string plugin_resource(const std::string& name) {
  return std::string(TX_PLUGIN_RESOURCE_DIR) + "/" + name;
}

std::string basic_resource(const std::string& name) {
  return std::string(TX_BASIC_RESOURCE_DIR) + "/" + name;
}

std::optional<bmp_picture> read_bmp24(const std::string& path) {
  const auto bytes = read_file(path);
  if (bytes.size() < 54 || bytes[0] != 'B' || bytes[1] != 'M' || le(bytes, 28, 2) != 24) {
    return std::nullopt;
  }
  bmp_picture picture;
  picture.width = static_cast<std::int32_t>(le(bytes, 18, 4));
  picture.height = static_cast<std::int32_t>(le(bytes, 22, 4));
  const std::size_t stride = (static_cast<std::size_t>(picture.width) * 3 + 3) / 4 * 4;
  for (std::int32_t row = 0; row < picture.height; ++row) {
    const std::size_t row_at = le(bytes, 10, 4) + stride * static_cast<std::size_t>(row);
    for (std::int32_t x = 0; x < picture.width; ++x) {
      const std::size_t at = row_at + static_cast<std::size_t>(x) * 3;
      picture.pixels.push_back({bytes.at(at), bytes.at(at + 1), bytes.at(at + 2)});
    }
  }
  return picture;
}

std::optional<icon_picture> read_icon(const std::string& path) {
  const auto bytes = read_file(path);
  if (bytes.size() < 22 || le(bytes, 4, 2) != 1) return std::nullopt;
  const bool cursor = le(bytes, 2, 2) == 2;
  const std::size_t image_at = le(bytes, 18, 4);
  icon_picture picture;
  picture.width = static_cast<std::int32_t>(le(bytes, image_at + 4, 4));
  if (cursor) {
    picture.hot_x = static_cast<std::int32_t>(le(bytes, 10, 2));
    picture.hot_y = static_cast<std::int32_t>(le(bytes, 12, 2));
  }
  const std::uint32_t bits = le(bytes, image_at + 14, 2);
  if (bits != (cursor ? 1u : 24u)) return std::nullopt;
  const auto width = static_cast<std::size_t>(picture.width);
  const std::size_t colour_at = image_at + 40 + (cursor ? 8 : 0);  // a cursor's two colours
  const std::size_t colour_stride = cursor ? (width + 31) / 32 * 4 : (width * 3 + 3) / 4 * 4;
  const std::size_t mask_at = colour_at + colour_stride * width;
  const std::size_t mask_stride = (width + 31) / 32 * 4;
  for (std::int32_t row = 0; row < picture.width; ++row) {
    const std::size_t colour_row = colour_at + colour_stride * static_cast<std::size_t>(row);
    for (std::int32_t x = 0; x < picture.width; ++x) {
      if (cursor) {
        const std::uint8_t level = bit(bytes, colour_row, x) ? 255 : 0;
        picture.colour.push_back({level, level, level});
      } else {
        const std::size_t at = colour_row + static_cast<std::size_t>(x) * 3;
        picture.colour.push_back({bytes.at(at), bytes.at(at + 1), bytes.at(at + 2)});
      }
      picture.and_mask.push_back(
          bit(bytes, mask_at + mask_stride * static_cast<std::size_t>(row), x));
    }
  }
  return picture;
}

}  // namespace tx::test
