// A tool's picture as a Windows bitmap: a host bytes visitor
// (tx_thrice_interleaved_bytes_visitor_interface_0) that copies the pixels it is handed (top row
// first; blue, green, red) while the plug-in's buffer is valid, and makes bitmaps of them.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "tx_host/dialog/picture_reader.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::gui {

class tool_picture final : public interface_object {
 public:
  tool_picture() = default;

  tx_custom_pointer pair() noexcept;
  void visit(std::int32_t rows, std::ptrdiff_t row_step, std::int32_t columns,
             std::ptrdiff_t column_step, std::int32_t channels, std::ptrdiff_t channel_step,
             const std::uint8_t* first) noexcept;

  // The size of the picture handed over; none when no picture came.
  const std::optional<dialog::picture_size>& size() const noexcept { return size_; }
  // The picture at `side` × `side` pixels (owned by the caller), greyed as a disabled tool shows
  // it when `greyed`; the background keeps the colour of the top left pixel (corner()).
  HBITMAP fitted(std::int32_t side, bool greyed) const;
  // The colour of the top left pixel, which stands for the picture's background.
  COLORREF corner() const noexcept;

 private:
  std::span<const interface_entry> interfaces() const noexcept override;

  std::vector<std::uint32_t> pixels_;  // 0x00RRGGBB, top row first
  std::optional<dialog::picture_size> size_;
};

}  // namespace tx::host::gui
