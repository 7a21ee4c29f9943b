#include "tx_host/services/catalogue_localizer.h"

#include <algorithm>
#include <cstring>

#include "tx/services.h"
#include "tx/visitors.h"

namespace tx::host {
namespace {

constexpr tx_localizer_interface_1 kTable{
    &root_slot,
    [](void*, std::int32_t, tx_custom_pointer, std::uint32_t) noexcept { return false; },
    [](void* self, std::int32_t reference, tx_custom_pointer visitor) noexcept {
      return object_of<catalogue_localizer>(self).load_string(reference, visitor);
    },
    [](void* self, std::int32_t reference, tx_custom_pointer visitor) noexcept {
      return object_of<catalogue_localizer>(self).load_bitmap(reference, visitor);
    },
};

constexpr interface_entry kInterfaces[]{{TX_LOCALIZER_INTERFACE_1, &kTable}};

// Little-endian fields of a .bmp file.
std::uint32_t read_u32(std::span<const std::uint8_t> file, std::size_t at) noexcept {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value |= std::uint32_t{file[at + i]} << (8 * i);
  return value;
}

std::uint16_t read_u16(std::span<const std::uint8_t> file, std::size_t at) noexcept {
  return static_cast<std::uint16_t>(file[at] | (file[at + 1] << 8));
}

}  // namespace

tx_custom_pointer catalogue_localizer::pair() noexcept { return {&kTable, object_half()}; }

const catalogue_string* catalogue_localizer::find_string(std::int64_t id) const noexcept {
  const auto found = std::find_if(strings_.begin(), strings_.end(),
                                  [id](const catalogue_string& s) { return s.id == id; });
  return found != strings_.end() ? &*found : nullptr;
}

bool catalogue_localizer::load_string(std::int32_t reference, tx_custom_pointer visitor) const {
  if (reference <= 0) return false;
  const catalogue_string* text = find_string(std::int64_t{reference} + language_);
  if (text == nullptr) text = find_string(reference);
  if (text == nullptr) return false;
  call(visitor, &tx_string_visitor_interface_0::visit, text->text.data());
  return true;
}

bool catalogue_localizer::load_bitmap(std::int32_t reference, tx_custom_pointer visitor) const {
  const auto found =
      std::find_if(bitmaps_.begin(), bitmaps_.end(),
                   [reference](const catalogue_bitmap& b) { return b.id == reference; });
  if (reference <= 0 || found == bitmaps_.end()) return false;
  // BITMAPFILEHEADER (14 bytes), then BITMAPINFOHEADER (40): only uncompressed 24-bit images.
  const std::span<const std::uint8_t> file = found->file;
  constexpr std::size_t kHeaders = 14 + 40;
  if (file.size() < kHeaders || file[0] != 'B' || file[1] != 'M') return false;
  const auto width = static_cast<std::int32_t>(read_u32(file, 18));
  const auto stored_height = static_cast<std::int32_t>(read_u32(file, 22));
  if (read_u16(file, 28) != 24 || read_u32(file, 30) != 0 || width <= 0 || stored_height == 0 ||
      stored_height == INT32_MIN) {
    return false;
  }
  const std::int32_t height = stored_height < 0 ? -stored_height : stored_height;
  const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
  const std::size_t offset = read_u32(file, 10);
  if (offset > file.size() || (file.size() - offset) / stride < static_cast<std::size_t>(height)) {
    return false;
  }
  // Rows are stored bottom-up unless the height is negative: the top row is shown first.
  const std::uint8_t* pixels = file.data() + offset;
  const bool bottom_up = stored_height > 0;
  const std::uint8_t* first =
      bottom_up ? pixels + stride * static_cast<std::size_t>(height - 1) : pixels;
  const auto row_step = static_cast<std::ptrdiff_t>(stride);
  call(visitor, &tx_thrice_interleaved_bytes_visitor_interface_0::visit, height,
       bottom_up ? -row_step : row_step, width, std::ptrdiff_t{3}, std::int32_t{3},
       std::ptrdiff_t{1}, first);
  return true;
}

std::span<const interface_entry> catalogue_localizer::interfaces() const noexcept {
  return kInterfaces;
}

}  // namespace tx::host
