#include "tx_host/services/recording_localizer.h"

#include <string>

#include "tx/services.h"
#include "tx/visitors.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

constexpr tx_localizer_interface_1 kTable{
    &root_slot,
    [](void* self, std::int32_t reference, tx_custom_pointer visitor,
       std::uint32_t code_page) noexcept {
      return object_of<recording_localizer>(self).load_text_data(reference, visitor, code_page);
    },
    [](void* self, std::int32_t reference, tx_custom_pointer visitor) noexcept {
      return object_of<recording_localizer>(self).load_string(reference, visitor);
    },
    [](void* self, std::int32_t reference, tx_custom_pointer visitor) noexcept {
      return object_of<recording_localizer>(self).load_bitmap(reference, visitor);
    },
};

constexpr interface_entry kInterfaces[]{{TX_LOCALIZER_INTERFACE_1, &kTable}};

}  // namespace

tx_custom_pointer recording_localizer::pair() noexcept { return {&kTable, object_half()}; }

bool recording_localizer::load_string(std::int32_t reference, tx_custom_pointer visitor) {
  requests_.push_back({localizer_request::kind::string, reference});
  if (reference <= 0) return false;
  const std::u16string text = to_utf16("localized:" + std::to_string(reference));
  call(visitor, &tx_string_visitor_interface_0::visit, text.c_str());
  return true;
}

bool recording_localizer::load_text_data(std::int32_t reference, tx_custom_pointer, std::uint32_t) {
  requests_.push_back({localizer_request::kind::text_data, reference});
  return false;
}

bool recording_localizer::load_bitmap(std::int32_t reference, tx_custom_pointer) {
  requests_.push_back({localizer_request::kind::bitmap, reference});
  return false;
}

std::span<const interface_entry> recording_localizer::interfaces() const noexcept {
  return kInterfaces;
}

}  // namespace tx::host
