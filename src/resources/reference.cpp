#include "resources/reference.h"

#include "tx/host/txk_basic.h"

namespace tx::resource {

std::optional<location> locate(std::int32_t reference) noexcept {
  // Widened first: the negation of the most negative reference does not fit in 32 bits.
  const std::int64_t id = reference > 0 ? std::int64_t{reference} : -std::int64_t{reference};
  if (id > platform::max_resource_id) return std::nullopt;
  const platform::module from =
      reference > 0 ? platform::own_module() : platform::find_module(TX_BASIC_MODULE_NAME);
  if (!from) return std::nullopt;
  return location{from, static_cast<std::uint32_t>(id)};
}

language_ids::language_ids(std::uint32_t id) noexcept {
  const std::int64_t translated = std::int64_t{id} + tx_res_get_lng();
  if (translated >= 0 && translated <= platform::max_resource_id) {
    ids_[count_++] = static_cast<std::uint32_t>(translated);
  }
  if (count_ == 0 || ids_[0] != id) ids_[count_++] = id;
}

}  // namespace tx::resource
