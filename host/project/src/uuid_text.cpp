#include "tx_host/project/uuid_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tx::host {

std::string uuid_to_text(tx_uuid uuid) {
  std::array<char, 16> digits{};
  // 16 digits always suffice for 64 bits.
  const char* const end =
      std::to_chars(digits.data(), digits.data() + digits.size(), uuid.opaque, 16).ptr;
  const std::string_view written(digits.data(), static_cast<std::size_t>(end - digits.data()));
  return std::string(digits.size() - written.size(), '0') + std::string(written);
}

std::optional<std::uint64_t> uuid_from_text(std::string_view text) noexcept {
  const auto is_hex = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
  };
  if (text.empty() || text.size() > 16 || !std::all_of(text.begin(), text.end(), is_hex)) {
    return std::nullopt;
  }
  std::uint64_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value, 16);
  return value;
}

}  // namespace tx::host
