// An image with a colour plane and a mask plane, loaded from an icon (or, failing that, a
// cursor) resource, and handed to the host through "tx_masked_bitmap_interface_0" for the
// duration of one call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "plugin/interface.h"
#include "tx/masked_bitmap.h"

namespace tx {

template <>
struct interface_traits<tx_masked_bitmap_interface_0> {
  static constexpr const char* name = TX_MASKED_BITMAP_INTERFACE_0;
};

class masked_bitmap_impl : public interface_impl {
 public:
  using table_type = tx_masked_bitmap_interface_0;
  static constexpr const char* interface_name = TX_MASKED_BITMAP_INTERFACE_0;
  static const table_type* table() noexcept;

  virtual std::int32_t width() = 0;
  virtual std::int32_t height() = 0;
  // The 24-bit colour plane, top row first, to a tx_thrice_interleaved_bytes_visitor_interface_0.
  virtual void visit_colour(custom_pointer visitor) = 0;
  // The 8-bit mask plane (255 lets the background through), top row first.
  virtual void visit_mask(custom_pointer visitor) = 0;

 protected:
  masked_bitmap_impl() = default;
  ~masked_bitmap_impl() = default;
};

namespace resource {

// Square: as wide and as tall as the icon's mask is wide. One buffer holds the colour plane
// (3 bytes a pixel) followed by the mask plane (1 byte a pixel), rows bottom-up in both.
class masked_bitmap final : public masked_bitmap_impl {
 public:
  // An empty image: 0 × 0, visits nothing.
  masked_bitmap() noexcept = default;
  // Icon `reference` at the default icon size or, when there is no such icon, cursor
  // `reference`; empty when neither can be read.
  explicit masked_bitmap(std::int32_t reference) noexcept;
  masked_bitmap(const masked_bitmap&) = delete;
  masked_bitmap& operator=(const masked_bitmap&) = delete;
  ~masked_bitmap() = default;

  int query(const char* name, const void** table, void** object) noexcept override;
  custom_pointer root() noexcept override { return root_of(this); }
  // The loaded size, or the size given to override_size().
  std::int32_t width() noexcept override;
  std::int32_t height() noexcept override;
  // Nothing when the image is empty.
  void visit_colour(custom_pointer visitor) noexcept override;
  void visit_mask(custom_pointer visitor) noexcept override;

  // From now on width() and height() answer this size; the planes keep theirs.
  void override_size(std::int32_t width, std::int32_t height) noexcept;

  bool loaded() const noexcept { return loaded_; }
  std::int32_t hot_x() const noexcept { return hot_x_; }
  std::int32_t hot_y() const noexcept { return hot_y_; }

 private:
  std::size_t plane_pixels() const noexcept;
  void visit_plane(custom_pointer visitor, std::size_t offset,
                   std::int32_t channels) const noexcept;

  std::int32_t hot_x_ = 0;
  std::int32_t hot_y_ = 0;
  std::int32_t width_ = 0;
  std::unique_ptr<std::uint8_t[]> buffer_;
  bool loaded_ = false;
  bool size_overridden_ = false;
  std::int32_t override_width_ = 0;
  std::int32_t override_height_ = 0;
};

}  // namespace resource
}  // namespace tx
