// How a script's words name what they act on: numbers, positions, captions, switches. Shared by
// every host that runs scripts, so that each reads a script alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tx::host::dialog {

// `text` in double quotes, for messages.
std::string quoted(std::string_view text);
// A whole decimal number with an optional sign (`-3`, `+42`); nothing for anything else.
std::optional<std::int32_t> whole_number(std::string_view text);
// A 1-based position written in digits only.
std::optional<std::size_t> position(std::string_view text);
// A caption without its trailing colon and blanks: "Find:" is found as "Find".
std::string_view bare(std::string_view caption) noexcept;
// `on`, `yes`, `true`, `1` or `off`, `no`, `false`, `0`.
std::optional<bool> on_off(std::string_view value);

}  // namespace tx::host::dialog
