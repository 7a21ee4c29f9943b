// Texts of a project document as its refusals show them: values that may not be UTF-8, keys as
// a JSON pointer spells them, and a surrogate that is half of a pair.
#pragma once

#include <string>
#include <string_view>

namespace tx::host::detail {

// A text of the document as a message can show it: bytes that are not UTF-8 become U+FFFD.
std::string printable(std::string_view text);

// A key as a JSON pointer spells it: "~" as "~0", "/" as "~1".
std::string pointer_token(std::string_view key);

// An escaped surrogate that is not half of a pair ("\udc00") comes out of the parser as the
// three bytes ED B0 80, which well-formed UTF-8 never holds: its code unit, or 0 when none.
char16_t unpaired_surrogate(std::string_view text) noexcept;

// A code unit as JSON escapes it: "\udc00".
std::string escaped_unit(char16_t unit);

}  // namespace tx::host::detail
