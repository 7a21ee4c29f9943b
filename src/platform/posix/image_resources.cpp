// Bitmaps and icons natively: the embedded .bmp, .ico and .cur files decoded into exactly the
// bytes that GetDIBits gives for the same resources on Windows. One difference remains: an
// icon that has no 32 × 32 image is read at its own size, where Windows would stretch it.
#include <memory>

#include "platform/platform.h"
#include "platform/posix/dib_reader.h"
#include "platform/posix/resource_table.h"

namespace tx::platform {
namespace {

std::span<const std::uint8_t> bytes_of(std::span<const std::byte> data) noexcept {
  return {reinterpret_cast<const std::uint8_t*>(data.data()), data.size()};
}

bool valid_image_id(module from, std::uint32_t id) noexcept {
  return from && id != 0 && id <= max_resource_id;
}

}  // namespace

std::optional<bitmap_pixels> load_bitmap(module from, std::uint32_t id) noexcept {
  if (!valid_image_id(from, id)) return std::nullopt;
  const auto image = posix::read_bmp_file(bytes_of(resource_data(from, resource_type::bitmap, id)));
  if (!image) return std::nullopt;
  bitmap_pixels result;
  result.width = image->width;
  result.height = image->rows;
  result.pixels = page_buffer(static_cast<std::size_t>(image->width) *
                              static_cast<std::size_t>(image->rows) * 4);
  if (!result.pixels) return std::nullopt;
  std::uint8_t* out = result.pixels.data();
  for (std::int32_t row = 0; row < image->rows; ++row) {
    for (std::int32_t x = 0; x < image->width; ++x) {
      for (const std::uint8_t byte : image->bgrx(x, row)) *out++ = byte;
    }
  }
  return result;
}

icon_planes load_icon(module from, std::uint32_t id) noexcept {
  if (!valid_image_id(from, id)) return {};
  bool cursor = false;
  auto file = resource_data(from, resource_type::group_icon, id);
  if (file.empty()) {
    file = resource_data(from, resource_type::group_cursor, id);
    cursor = true;
  }
  const auto image = posix::read_icon_file(bytes_of(file), cursor);
  // The planes are square, as wide as the mask: an image shorter than wide cannot fill them.
  if (!image || image->colour.rows < image->colour.width) return {};
  const std::int32_t width = image->colour.width;
  const auto area = static_cast<std::size_t>(width) * static_cast<std::size_t>(width);
  icon_planes planes;
  try {
    planes.buffer = std::make_unique<std::uint8_t[]>(area * 4);
  } catch (...) {
    return {};
  }
  std::uint8_t* colour = planes.buffer.get();
  std::uint8_t* mask = planes.buffer.get() + area * 3;
  for (std::int32_t row = 0; row < width; ++row) {
    for (std::int32_t x = 0; x < width; ++x) {
      const auto pixel = image->colour.bgrx(x, row);
      *colour++ = pixel[0];
      *colour++ = pixel[1];
      *colour++ = pixel[2];
      // A monochrome DDB read at 8 bits a pixel answers indices of the default palette: black
      // is 0 and white 255.
      *mask++ = image->mask.index(x, row) != 0 ? 255 : 0;
    }
  }
  planes.hot_x = image->hot_x;
  planes.hot_y = image->hot_y;
  planes.width = width;
  planes.loaded = true;
  return planes;
}

}  // namespace tx::platform
