#include "document_text.h"

#include <cstring>

#include "tx_host/services/utf.h"

namespace tx::host::detail {

std::string printable(std::string_view text) { return to_utf8(to_utf16(text)); }

std::string pointer_token(std::string_view key) {
  std::string token;
  for (const char c : printable(key)) {
    if (c == '~') {
      token += "~0";
    } else if (c == '/') {
      token += "~1";
    } else {
      token += c;
    }
  }
  return token;
}

char16_t unpaired_surrogate(std::string_view text) noexcept {
  const char* at = text.data();
  const char* const end = text.data() + text.size();
  while (end - at >= 3) {
    at = static_cast<const char*>(std::memchr(at, 0xED, static_cast<std::size_t>(end - at - 2)));
    if (at == nullptr) break;
    const auto second = static_cast<unsigned char>(at[1]);
    if (second >= 0xA0) {
      return static_cast<char16_t>(0xD000 | ((second & 0x3F) << 6) | (at[2] & 0x3F));
    }
    ++at;
  }
  return 0;
}

std::string escaped_unit(char16_t unit) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text = "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += digits[(unit >> shift) & 0xF];
  return text;
}

}  // namespace tx::host::detail
