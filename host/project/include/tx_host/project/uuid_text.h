// A uuid as project files and txhost write it: hexadecimal digits.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tx/abi.h"

namespace tx::host {

// Always 16 lower-case digits: 00000000000000a1.
std::array<char, 16> uuid_digits(tx_uuid uuid) noexcept;
std::string uuid_to_text(tx_uuid uuid);

// 1 to 16 hexadecimal digits of either case, nothing else; nullopt otherwise. "A1" and "00a1"
// are the same uuid.
std::optional<std::uint64_t> uuid_from_text(std::string_view text) noexcept;

}  // namespace tx::host
