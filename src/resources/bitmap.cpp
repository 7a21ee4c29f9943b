#include "resources/bitmap.h"

#include "resources/reference.h"
#include "tx/visitors.h"

namespace tx::resource {

bitmap::bitmap(std::int32_t reference) noexcept { load(reference, false); }

bool bitmap::load(std::int32_t reference, bool transparent) noexcept {
  image_ = {};
  masked_ = false;
  transparent_ = transparent;
  const auto where = locate(reference);
  if (!where) return false;
  // The plug-in's own images serve every language. The host's basic library may hold a copy
  // for the current language (at id + the language offset, as its strings): that one first.
  std::optional<platform::bitmap_pixels> loaded;
  if (reference > 0) {
    loaded = platform::load_bitmap(where->module, where->id);
  } else {
    for (const std::uint32_t id : language_ids(where->id)) {
      loaded = platform::load_bitmap(where->module, id);
      if (loaded) break;
    }
  }
  if (!loaded) return false;
  image_ = std::move(*loaded);
  if (transparent_) apply_transparency();
  return true;
}

void bitmap::apply_transparency() noexcept {
  std::uint8_t* const pixels = image_.pixels.data();
  const std::uint8_t key[3] = {pixels[0], pixels[1], pixels[2]};
  for (std::size_t at = 0; at + 4 <= image_.pixels.size(); at += 4) {
    std::uint8_t* const pixel = pixels + at;
    if (pixel[0] == key[0] && pixel[1] == key[1] && pixel[2] == key[2]) {
      pixel[0] = pixel[1] = pixel[2] = pixel[3] = 0;
    } else {
      pixel[3] = 255;
    }
  }
  masked_ = true;
}

bool bitmap::visit(custom_pointer visitor, bool stored_order) const noexcept {
  if (empty()) return false;
  const std::ptrdiff_t row_bytes = std::ptrdiff_t{image_.width} * 4;
  const std::uint8_t* const first =
      stored_order ? image_.pixels.data()
                   : image_.pixels.data() + row_bytes * (std::ptrdiff_t{image_.height} - 1);
  call<tx_thrice_interleaved_bytes_visitor_interface_0>(
      visitor, &tx_thrice_interleaved_bytes_visitor_interface_0::visit, image_.height,
      stored_order ? row_bytes : -row_bytes, image_.width, std::ptrdiff_t{4},
      std::int32_t{transparent_ ? 4 : 3}, std::ptrdiff_t{1}, first);
  return true;
}

}  // namespace tx::resource
