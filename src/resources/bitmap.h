// A bitmap resource as the plug-in hands it to the host: 32-bit pixels (blue, green, red,
// alpha), rows bottom-up as in a device-independent bitmap, in memory taken in whole pages and
// given back when the bitmap goes. Nothing is cached: each load reads the resource afresh.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/platform.h"
#include "plugin/interface.h"

namespace tx::resource {

class bitmap {
 public:
  // An empty bitmap.
  bitmap() noexcept = default;
  // Bitmap `reference` (see locate()) with the transparent option clear: the pixels as loaded.
  explicit bitmap(std::int32_t reference) noexcept;

  // Loads `reference` afresh, or empties the bitmap when it cannot be read. With `transparent`,
  // the colour of the first stored pixel (the bottom-left one) is the key: every pixel of that
  // blue, green and red becomes 0, 0, 0 with alpha 0, every other one gets alpha 255, and the
  // bitmap is marked masked. Returns whether the bitmap was read.
  bool load(std::int32_t reference, bool transparent) noexcept;

  // Hands the pixels to a tx_thrice_interleaved_bytes_visitor_interface_0: top row first (from
  // the last stored row, negative row step) or, with `stored_order`, bottom row first; four
  // channels with the transparent option, else three. An empty bitmap calls nothing and answers
  // false.
  bool visit(custom_pointer visitor, bool stored_order) const noexcept;

  bool empty() const noexcept { return !image_.pixels; }
  std::int32_t width() const noexcept { return image_.width; }
  std::int32_t height() const noexcept { return image_.height; }
  // width × height × 4.
  std::size_t byte_size() const noexcept { return image_.pixels.size(); }
  bool masked() const noexcept { return masked_; }
  bool transparent() const noexcept { return transparent_; }
  std::span<const std::uint8_t> pixels() const noexcept {
    return {image_.pixels.data(), image_.pixels.size()};
  }

 private:
  void apply_transparency() noexcept;

  platform::bitmap_pixels image_;
  bool masked_ = false;
  bool transparent_ = false;
};

}  // namespace tx::resource
