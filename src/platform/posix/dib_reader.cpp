#include "platform/posix/dib_reader.h"

#include <cstdlib>
#include <limits>

#include "platform/platform.h"

namespace tx::platform::posix {
namespace {

// Little-endian fields, read only when they lie inside the bytes.
std::optional<std::uint32_t> field(std::span<const std::uint8_t> bytes, std::size_t at,
                                   std::size_t size) noexcept {
  if (at > bytes.size() || size > bytes.size() - at) return std::nullopt;
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i) value |= std::uint32_t{bytes[at + i]} << (8 * i);
  return value;
}

std::optional<std::uint32_t> u32(std::span<const std::uint8_t> bytes, std::size_t at) noexcept {
  return field(bytes, at, 4);
}

std::optional<std::uint16_t> u16(std::span<const std::uint8_t> bytes, std::size_t at) noexcept {
  const auto value = field(bytes, at, 2);
  return value ? std::optional<std::uint16_t>(static_cast<std::uint16_t>(*value)) : std::nullopt;
}

std::optional<std::uint8_t> u8(std::span<const std::uint8_t> bytes, std::size_t at) noexcept {
  return at < bytes.size() ? std::optional<std::uint8_t>(bytes[at]) : std::nullopt;
}

constexpr std::uint32_t uncompressed = 0;  // BI_RGB
constexpr std::size_t info_header_size = 40;
constexpr std::int32_t default_icon_size = 32;

std::size_t stride_of(std::int32_t width, std::uint16_t bits) noexcept {
  return (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
}

bool valid_side(std::int64_t side) noexcept { return side > 0 && side <= max_image_side; }

// The bitmap whose BITMAPINFOHEADER (or a later, longer header) starts at `header_at`. Its pixels
// start at `pixels_at` when given (a .bmp file says where), else right after the colour table
// (an icon image). An icon's header counts the XOR and AND bitmaps together: `halve_height`.
std::optional<dib> read_dib(std::span<const std::uint8_t> bytes, std::size_t header_at,
                            std::optional<std::size_t> pixels_at, bool halve_height) noexcept {
  const auto header_size = u32(bytes, header_at);
  if (!header_size || *header_size < info_header_size) return std::nullopt;
  const auto width = u32(bytes, header_at + 4);
  const auto height = u32(bytes, header_at + 8);
  const auto bits = u16(bytes, header_at + 14);
  const auto compression = u32(bytes, header_at + 16);
  const auto colours_used = u32(bytes, header_at + 32);
  if (!width || !height || !bits || !compression || !colours_used) return std::nullopt;
  if (*compression != uncompressed) return std::nullopt;
  if (*bits != 1 && *bits != 4 && *bits != 8 && *bits != 24 && *bits != 32) return std::nullopt;

  dib image;
  image.width = static_cast<std::int32_t>(*width);
  const std::int64_t signed_height = static_cast<std::int32_t>(*height);
  std::int64_t rows = signed_height < 0 ? -signed_height : signed_height;
  if (halve_height) {
    if (signed_height < 0) return std::nullopt;
    rows /= 2;
  }
  if (!valid_side(image.width) || !valid_side(rows)) return std::nullopt;
  image.rows = static_cast<std::int32_t>(rows);
  image.top_down = signed_height < 0;
  image.bits = *bits;
  image.stride = stride_of(image.width, image.bits);

  const std::size_t table_entries =
      *colours_used != 0 ? *colours_used : (image.bits <= 8 ? std::size_t{1} << image.bits : 0);
  if (table_entries > 256) return std::nullopt;
  const std::size_t table_at = header_at + *header_size;
  if (table_at > bytes.size() || table_entries * 4 > bytes.size() - table_at) return std::nullopt;
  if (image.bits <= 8) image.palette = bytes.subspan(table_at, table_entries * 4);

  const std::size_t pixel_at = pixels_at.value_or(table_at + table_entries * 4);
  const std::size_t pixel_bytes = image.stride * static_cast<std::size_t>(image.rows);
  if (pixel_at > bytes.size() || pixel_bytes > bytes.size() - pixel_at) return std::nullopt;
  image.pixels = bytes.subspan(pixel_at, pixel_bytes);
  return image;
}

// The entry of an icon directory that Windows picks at the default size: the nearest in size,
// then the deepest. Returns the image's offset and size, and the directory entry's offset.
struct directory_entry {
  std::size_t image_at = 0;
  std::size_t image_size = 0;
  std::size_t entry_at = 0;
};

std::optional<directory_entry> pick_entry(std::span<const std::uint8_t> file,
                                          std::uint16_t count) noexcept {
  std::optional<directory_entry> best;
  std::int32_t best_distance = std::numeric_limits<std::int32_t>::max();
  std::uint16_t best_depth = 0;
  for (std::uint16_t i = 0; i < count; ++i) {
    const std::size_t at = 6 + std::size_t{16} * i;
    const auto width = u8(file, at);
    const auto height = u8(file, at + 1);
    const auto depth = u16(file, at + 6);
    const auto size = u32(file, at + 8);
    const auto offset = u32(file, at + 12);
    if (!width || !height || !depth || !size || !offset) return std::nullopt;
    // A size byte of 0 means 256.
    const std::int32_t w = *width != 0 ? *width : 256;
    const std::int32_t h = *height != 0 ? *height : 256;
    const std::int32_t distance = std::abs(w - default_icon_size) + std::abs(h - default_icon_size);
    if (distance < best_distance || (distance == best_distance && *depth > best_depth)) {
      best = directory_entry{*offset, *size, at};
      best_distance = distance;
      best_depth = *depth;
    }
  }
  return best;
}

}  // namespace

std::uint8_t dib::index(std::int32_t x, std::int32_t row) const noexcept {
  const std::int32_t stored_row = top_down ? rows - 1 - row : row;
  const std::uint8_t* line = pixels.data() + stride * static_cast<std::size_t>(stored_row);
  const auto column = static_cast<std::size_t>(x);
  switch (bits) {
    case 1:
      return (line[column / 8] >> (7 - column % 8)) & 0x1;
    case 4:
      return (line[column / 2] >> (column % 2 == 0 ? 4 : 0)) & 0xF;
    case 8:
      return line[column];
    default:
      return 0;
  }
}

std::array<std::uint8_t, 4> dib::bgrx(std::int32_t x, std::int32_t row) const noexcept {
  if (bits <= 8) {
    const std::size_t entry = std::size_t{index(x, row)} * 4;
    // An index past the colour table reads as black.
    if (entry + 4 > palette.size()) return {0, 0, 0, 0};
    return {palette[entry], palette[entry + 1], palette[entry + 2], 0};
  }
  const std::int32_t stored_row = top_down ? rows - 1 - row : row;
  const std::uint8_t* pixel = pixels.data() + stride * static_cast<std::size_t>(stored_row) +
                              static_cast<std::size_t>(x) * (bits / 8);
  return {pixel[0], pixel[1], pixel[2], bits == 32 ? pixel[3] : std::uint8_t{0}};
}

std::optional<dib> read_bmp_file(std::span<const std::uint8_t> file) noexcept {
  // BITMAPFILEHEADER: "BM", the file size, two reserved words and the offset of the pixels.
  if (file.size() < 14 || file[0] != 'B' || file[1] != 'M') return std::nullopt;
  const auto pixels_at = u32(file, 10);
  if (!pixels_at) return std::nullopt;
  return read_dib(file, 14, *pixels_at, false);
}

std::optional<icon_image> read_icon_file(std::span<const std::uint8_t> file, bool cursor) noexcept {
  // ICONDIR: reserved 0, type 1 (icon) or 2 (cursor), the number of entries of 16 bytes each.
  const auto reserved = u16(file, 0);
  const auto type = u16(file, 2);
  const auto count = u16(file, 4);
  if (!reserved || !type || !count || *reserved != 0 || *count == 0) return std::nullopt;
  if (*type != (cursor ? 2 : 1)) return std::nullopt;
  const auto entry = pick_entry(file, *count);
  if (!entry || entry->image_at > file.size() ||
      entry->image_size > file.size() - entry->image_at) {
    return std::nullopt;
  }
  const auto image_bytes = file.subspan(entry->image_at, entry->image_size);
  auto colour = read_dib(image_bytes, 0, std::nullopt, true);
  if (!colour) return std::nullopt;

  icon_image icon;
  icon.colour = *colour;
  // The AND mask follows the XOR bitmap: one bit a pixel, the same size, rows bottom-up.
  icon.mask.width = colour->width;
  icon.mask.rows = colour->rows;
  icon.mask.bits = 1;
  icon.mask.stride = stride_of(colour->width, 1);
  const std::size_t mask_at =
      static_cast<std::size_t>(colour->pixels.data() + colour->pixels.size() - image_bytes.data());
  const std::size_t mask_bytes = icon.mask.stride * static_cast<std::size_t>(icon.mask.rows);
  if (mask_bytes > image_bytes.size() - mask_at) return std::nullopt;
  icon.mask.pixels = image_bytes.subspan(mask_at, mask_bytes);

  if (cursor) {
    // A cursor's directory entry holds its hot spot where an icon's holds planes and depth.
    const auto hot_x = u16(file, entry->entry_at + 4);
    const auto hot_y = u16(file, entry->entry_at + 6);
    if (!hot_x || !hot_y) return std::nullopt;
    icon.hot_x = *hot_x;
    icon.hot_y = *hot_y;
  } else {
    icon.hot_x = colour->width / 2;
    icon.hot_y = colour->rows / 2;
  }
  return icon;
}

}  // namespace tx::platform::posix
