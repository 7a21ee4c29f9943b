#include "tool_picture.h"

#include "native.h"
#include "tx/visitors.h"

namespace tx::host::gui {
namespace {

constexpr tx_thrice_interleaved_bytes_visitor_interface_0 kTable{
    &root_slot,
    [](void* self, std::int32_t rows, std::ptrdiff_t row_step, std::int32_t columns,
       std::ptrdiff_t column_step, std::int32_t channels, std::ptrdiff_t channel_step,
       const std::uint8_t* first) noexcept {
      object_of<tool_picture>(self).visit(rows, row_step, columns, column_step, channels,
                                          channel_step, first);
    },
};
constexpr interface_entry kInterfaces[]{{TX_THRICE_INTERLEAVED_BYTES_VISITOR_INTERFACE_0, &kTable}};

// Larger than any tool picture: a size beyond it is no picture.
constexpr std::int32_t kMaxSide = 256;

constexpr COLORREF as_colorref(std::uint32_t pixel) noexcept {
  return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
}

}  // namespace

tx_custom_pointer tool_picture::pair() noexcept { return {&kTable, object_half()}; }

void tool_picture::visit(std::int32_t rows, std::ptrdiff_t row_step, std::int32_t columns,
                         std::ptrdiff_t column_step, std::int32_t channels,
                         std::ptrdiff_t channel_step, const std::uint8_t* first) noexcept {
  // Pixels without a buffer, or of a shape no toolbar shows, are no picture.
  if (first == nullptr || rows <= 0 || columns <= 0 || channels < 3 || rows > kMaxSide ||
      columns > kMaxSide) {
    return;
  }
  pixels_.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), 0);
  for (std::int32_t r = 0; r < rows; ++r) {
    for (std::int32_t c = 0; c < columns; ++c) {
      const std::uint8_t* p = first + r * row_step + c * column_step;
      const std::uint32_t blue = p[0];
      const std::uint32_t green = p[channel_step];
      const std::uint32_t red = p[2 * channel_step];
      pixels_[r * columns + c] = (red << 16) | (green << 8) | blue;
    }
  }
  size_ = dialog::picture_size{rows, columns, channels};
}

COLORREF tool_picture::corner() const noexcept {
  return pixels_.empty() ? RGB(0, 0, 0) : as_colorref(pixels_[0]);
}

HBITMAP tool_picture::fitted(std::int32_t side, bool greyed) const {
  if (!size_ || pixels_.empty() || side <= 0) return nullptr;
  std::uint32_t* out = nullptr;
  HBITMAP bitmap = top_down_bitmap(side, side, &out);
  if (bitmap == nullptr) return nullptr;
  const std::uint32_t clear = pixels_[0] & 0xFFFFFF;
  for (std::int32_t r = 0; r < side; ++r) {
    for (std::int32_t c = 0; c < side; ++c) {
      // The nearest pixel of a picture of another size.
      const std::uint32_t p =
          pixels_[(r * size_->rows / side) * size_->columns + c * size_->columns / side] & 0xFFFFFF;
      std::uint32_t pixel = p;
      if (greyed && p != clear) {
        // Its lightness, lifted towards the button face: the look of a tool that cannot be used.
        const std::uint32_t grey =
            (((p >> 16) & 0xFF) * 30 + ((p >> 8) & 0xFF) * 59 + (p & 0xFF) * 11) / 100;
        const std::uint32_t light = 128 + grey / 2;
        pixel = (light << 16) | (light << 8) | light;
        if (pixel == clear) pixel ^= 1;
      }
      out[r * side + c] = pixel;
    }
  }
  return bitmap;
}

std::span<const interface_entry> tool_picture::interfaces() const noexcept { return kInterfaces; }

}  // namespace tx::host::gui
