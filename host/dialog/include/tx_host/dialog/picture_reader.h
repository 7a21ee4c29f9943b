// The host's reading of a picture an element hands over through a bytes visitor
// (tx_thrice_interleaved_bytes_visitor_interface_0): its size, which is what the text host shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "tx/abi.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::dialog {

struct picture_size {
  std::int32_t rows = 0;
  std::int32_t columns = 0;
  std::int32_t channels = 0;
};

// Keeps the size of the last picture visited.
class picture_collector final : public interface_object {
 public:
  picture_collector() = default;
  tx_custom_pointer pair() noexcept;
  void visit(std::int32_t rows, std::int32_t columns, std::int32_t channels,
             const std::uint8_t* first) noexcept;
  const std::optional<picture_size>& size() const noexcept { return size_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
  std::optional<picture_size> size_;
};

// The size of the picture `ask(visitor)` hands over; nothing when `ask` answers false or visits
// no picture.
template <class Ask>
std::optional<picture_size> collect_picture(Ask&& ask) {
  picture_collector collector;
  if (!std::forward<Ask>(ask)(collector.pair())) return std::nullopt;
  return collector.size();
}

// "image 16×16" (rows × columns as the host shows them), or "no image".
std::string describe_picture(const std::optional<picture_size>& size);

}  // namespace tx::host::dialog
