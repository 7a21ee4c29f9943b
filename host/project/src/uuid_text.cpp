#include "tx_host/project/uuid_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tx::host {

std::array<char, 16> uuid_digits(tx_uuid uuid) noexcept {
  std::array<char, 16> digits;
  digits.fill('0');
  // Written at the end, after the leading zeros; 16 digits always suffice for 64 bits.
  std::array<char, 16> written{};
  const char* const end =
      std::to_chars(written.data(), written.data() + written.size(), uuid.opaque, 16).ptr;
  const auto length = static_cast<std::size_t>(end - written.data());
  std::copy(static_cast<const char*>(written.data()), end,
            digits.end() - static_cast<std::ptrdiff_t>(length));
  return digits;
}

std::string uuid_to_text(tx_uuid uuid) {
  const std::array<char, 16> digits = uuid_digits(uuid);
  return std::string(digits.data(), digits.size());
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
