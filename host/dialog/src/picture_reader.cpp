#include "tx_host/dialog/picture_reader.h"

#include "tx/visitors.h"

namespace tx::host::dialog {
namespace {

constexpr tx_thrice_interleaved_bytes_visitor_interface_0 kTable{
    &root_slot,
    [](void* self, std::int32_t rows, std::ptrdiff_t, std::int32_t columns, std::ptrdiff_t,
       std::int32_t channels, std::ptrdiff_t, const std::uint8_t* first) noexcept {
      object_of<picture_collector>(self).visit(rows, columns, channels, first);
    },
};
constexpr interface_entry kInterfaces[]{{TX_THRICE_INTERLEAVED_BYTES_VISITOR_INTERFACE_0, &kTable}};

}  // namespace

tx_custom_pointer picture_collector::pair() noexcept { return {&kTable, object_half()}; }

void picture_collector::visit(std::int32_t rows, std::int32_t columns, std::int32_t channels,
                              const std::uint8_t* first) noexcept {
  // Pixels without a buffer are no picture.
  if (first == nullptr || rows <= 0 || columns <= 0 || channels <= 0) return;
  size_ = picture_size{rows, columns, channels};
}

std::span<const interface_entry> picture_collector::interfaces() const noexcept {
  return kInterfaces;
}

std::string describe_picture(const std::optional<picture_size>& size) {
  if (!size) return "no image";
  return "image " + std::to_string(size->columns) + "×" + std::to_string(size->rows);
}

}  // namespace tx::host::dialog
