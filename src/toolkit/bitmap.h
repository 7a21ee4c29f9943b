// bitmap: a picture element ("tx_bitmap_interface_0"), and how every element hands the host a
// picture named by a resource reference.
#pragma once

#include <cstdint>

#include "resources/loader.h"
#include "toolkit/element.h"
#include "tx/toolkit/bitmap.h"

namespace tx {

class bitmap_impl : public interface_impl {
 public:
  using table_type = tx_bitmap_interface_0;
  static constexpr const char* interface_name = TX_BITMAP_INTERFACE_0;
  static const table_type* table() noexcept;

  virtual bool pixels(custom_pointer visitor) = 0;
  virtual bool hint(custom_pointer visitor) = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~bitmap_impl() = default;
};

namespace toolkit {

// An image property held as a resource reference (> 0: the plug-in's own bitmap; < 0: bitmap
// −reference of the host's basic library): its pixels, top row first, to a bytes visitor.
// 0 means no image: nothing is called. An image that cannot be loaded calls nothing either.
inline bool load_image(std::int32_t reference, custom_pointer visitor) noexcept {
  return reference != 0 && resource::load_bitmap(reference, visitor);
}

class bitmap final : public detail::generic_element_impl<bitmap_impl> {
 public:
  // `image`: the picture's resource reference; `hint`: the hint's (0: none).
  explicit bitmap(std::int32_t image = 0, std::int32_t hint = 0) noexcept
      : image_(image), hint_(hint) {}

  bool pixels(custom_pointer visitor) override { return load_image(image_, visitor); }
  bool hint(custom_pointer visitor) override { return load_text(hint_, visitor); }

  void set_image(std::int32_t reference) noexcept { assign(image_, reference, TX_CHANGED_VALUE); }
  void set_hint(std::int32_t reference) noexcept { assign(hint_, reference, TX_CHANGED_TEXTS); }
  std::int32_t image() const noexcept { return image_; }

 private:
  void assign(std::int32_t& field, std::int32_t value, std::uint32_t what) noexcept {
    if (field == value) return;
    field = value;
    notify(what);
  }

  std::int32_t image_;
  std::int32_t hint_;
};

}  // namespace toolkit
}  // namespace tx
