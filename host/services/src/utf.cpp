#include "tx_host/services/utf.h"

#include <cstdint>

namespace tx::host {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void append_utf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

char16_t* put_utf16(char16_t* out, char32_t c) noexcept {
  if (c < 0x10000) {
    *out++ = static_cast<char16_t>(c);
  } else {
    c -= 0x10000;
    *out++ = static_cast<char16_t>(0xD800 + (c >> 10));
    *out++ = static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  }
  return out;
}

bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

// Decodes one well-formed sequence at `text[i]`; returns its length, or 0 when malformed.
std::size_t decode_utf8(std::string_view text, std::size_t i, char32_t& c) noexcept {
  const auto lead = static_cast<std::uint8_t>(text[i]);
  std::size_t length = 0;
  char32_t minimum = 0;
  if (lead < 0x80) {
    c = lead;
    return 1;
  } else if ((lead & 0xE0) == 0xC0) {
    length = 2;
    minimum = 0x80;
    c = lead & 0x1F;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3;
    minimum = 0x800;
    c = lead & 0x0F;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4;
    minimum = 0x10000;
    c = lead & 0x07;
  } else {
    return 0;
  }
  if (text.size() - i < length) return 0;
  for (std::size_t k = 1; k < length; ++k) {
    const auto next = static_cast<std::uint8_t>(text[i + k]);
    if ((next & 0xC0) != 0x80) return 0;
    c = (c << 6) | (next & 0x3F);
  }
  if (c < minimum || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return 0;
  return length;
}

}  // namespace

std::string to_utf8(std::u16string_view text) {
  std::string out;
  to_utf8(text, out);
  return out;
}

void to_utf8(std::u16string_view text, std::string& out) {
  out.clear();
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (c < 0x80) {
      out += static_cast<char>(c);
      continue;
    }
    if (is_high_surrogate(c) && i + 1 < text.size() && is_low_surrogate(text[i + 1])) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
      ++i;
    } else if (is_high_surrogate(c) || is_low_surrogate(c)) {
      c = kReplacement;
    }
    append_utf8(out, c);
  }
}

std::u16string to_utf16(std::string_view text) {
  std::u16string out(text.size(), u'\0');
  out.resize(to_utf16(text, out.data()));
  return out;
}

// Every sequence of n bytes makes at most n code units (4 bytes: a surrogate pair), and each
// malformed byte one, so `out` never needs more than text.size().
std::size_t to_utf16(std::string_view text, char16_t* out) noexcept {
  char16_t* const start = out;
  std::size_t i = 0;
  while (i < text.size()) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 0x80) {
      *out++ = byte;
      ++i;
      continue;
    }
    char32_t c = 0;
    const std::size_t length = decode_utf8(text, i, c);
    if (length == 0) {
      out = put_utf16(out, kReplacement);
      ++i;
    } else {
      out = put_utf16(out, c);
      i += length;
    }
  }
  return static_cast<std::size_t>(out - start);
}

}  // namespace tx::host
