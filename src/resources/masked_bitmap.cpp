#include "resources/masked_bitmap.h"

#include "platform/platform.h"
#include "resources/reference.h"
#include "tx/visitors.h"

namespace tx {

const masked_bitmap_impl::table_type* masked_bitmap_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<masked_bitmap_impl>,        slot<&masked_bitmap_impl::width>,
      slot<&masked_bitmap_impl::height>,     slot<&masked_bitmap_impl::visit_colour>,
      slot<&masked_bitmap_impl::visit_mask>,
  };
  return &table;
}

namespace resource {

masked_bitmap::masked_bitmap(std::int32_t reference) noexcept {
  const auto where = locate(reference);
  if (!where) return;
  platform::icon_planes planes = platform::load_icon(where->module, where->id);
  if (!planes.loaded) return;
  hot_x_ = planes.hot_x;
  hot_y_ = planes.hot_y;
  width_ = planes.width;
  buffer_ = std::move(planes.buffer);
  loaded_ = true;
}

int masked_bitmap::query(const char* name, const void** table, void** object) noexcept {
  return match<masked_bitmap_impl>(this, name, table, object);
}

std::int32_t masked_bitmap::width() noexcept { return size_overridden_ ? override_width_ : width_; }

std::int32_t masked_bitmap::height() noexcept {
  return size_overridden_ ? override_height_ : width_;
}

void masked_bitmap::override_size(std::int32_t width, std::int32_t height) noexcept {
  size_overridden_ = true;
  override_width_ = width;
  override_height_ = height;
}

std::size_t masked_bitmap::plane_pixels() const noexcept {
  return static_cast<std::size_t>(width_) * static_cast<std::size_t>(width_);
}

void masked_bitmap::visit_colour(custom_pointer visitor) noexcept { visit_plane(visitor, 0, 3); }

void masked_bitmap::visit_mask(custom_pointer visitor) noexcept {
  visit_plane(visitor, plane_pixels() * 3, 1);
}

void masked_bitmap::visit_plane(custom_pointer visitor, std::size_t offset,
                                std::int32_t channels) const noexcept {
  if (!loaded_) return;
  // The planes' own size, whatever size width() and height() answer.
  const std::ptrdiff_t row_bytes = std::ptrdiff_t{width_} * channels;
  const std::uint8_t* const last_row =
      buffer_.get() + offset + static_cast<std::size_t>(row_bytes) * (width_ - 1);
  call<tx_thrice_interleaved_bytes_visitor_interface_0>(
      visitor, &tx_thrice_interleaved_bytes_visitor_interface_0::visit, width_, -row_bytes, width_,
      std::ptrdiff_t{channels}, channels, std::ptrdiff_t{1}, last_row);
}

}  // namespace resource
}  // namespace tx
