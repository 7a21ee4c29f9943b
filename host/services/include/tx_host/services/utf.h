// Conversions between the UTF-16 that crosses the plug-in boundary and the UTF-8 that the host
// prints and takes on its command line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tx::host {

// UTF-16 to UTF-8. An unpaired surrogate becomes U+FFFD.
std::string to_utf8(std::u16string_view text);
// The same into `out`, replacing what it held (and keeping its room for the next text).
void to_utf8(std::u16string_view text, std::string& out);

// UTF-8 to UTF-16. Each byte that does not start a well-formed sequence (truncated, overlong,
// a surrogate or above U+10FFFF) becomes one U+FFFD.
std::u16string to_utf16(std::string_view text);
// The same into `out`, which has room for text.size() code units (never more are needed);
// answers the code units written.
std::size_t to_utf16(std::string_view text, char16_t* out) noexcept;

}  // namespace tx::host
