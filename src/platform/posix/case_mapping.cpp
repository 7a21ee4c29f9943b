// Case mapping natively with the C library's wide-character tables in a UTF-8 locale (wchar_t
// holds a whole code point here). Follows the Windows tables: a letter maps only to a partner
// that maps back to it, so "İ", "ı", "ς", "ẞ" and title-case digraphs stay as they are; a
// surrogate pair maps as one code point, a lone surrogate not at all.
#include <locale.h>
#include <wctype.h>

#include "platform/platform.h"

namespace tx::platform {
namespace {

static_assert(sizeof(wchar_t) == 4, "a wide character holds any code point");

// The process's UTF-8 character-type locale, made once and freed at exit. Null when the system
// has none; the C locale then maps ASCII only.
class utf8_ctype {
 public:
  utf8_ctype() noexcept {
    for (const char* name : {"C.UTF-8", "C.utf8", "en_US.UTF-8"}) {
      locale_ = newlocale(LC_CTYPE_MASK, name, static_cast<locale_t>(nullptr));
      if (locale_ != static_cast<locale_t>(nullptr)) break;
    }
  }
  utf8_ctype(const utf8_ctype&) = delete;
  utf8_ctype& operator=(const utf8_ctype&) = delete;
  ~utf8_ctype() {
    if (locale_ != static_cast<locale_t>(nullptr)) freelocale(locale_);
  }

  wint_t lower(wint_t c) const noexcept {
    return locale_ != static_cast<locale_t>(nullptr) ? towlower_l(c, locale_) : towlower(c);
  }
  wint_t upper(wint_t c) const noexcept {
    return locale_ != static_cast<locale_t>(nullptr) ? towupper_l(c, locale_) : towupper(c);
  }

 private:
  locale_t locale_ = static_cast<locale_t>(nullptr);
};

const utf8_ctype& ctype() noexcept {
  static const utf8_ctype instance;
  return instance;
}

enum class direction { lower, upper };

// `c` mapped, when its partner maps back to it.
char32_t mapped(char32_t c, direction to) noexcept {
  const utf8_ctype& table = ctype();
  const wint_t there = to == direction::lower ? table.lower(c) : table.upper(c);
  if (there == c) return c;
  const wint_t back = to == direction::lower ? table.upper(there) : table.lower(there);
  return back == c ? static_cast<char32_t>(there) : c;
}

constexpr bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }
constexpr bool is_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

// ASCII maps by its 26 letter pairs alone, in every locale the tables come from: the same
// answers as the tables, without asking them.
constexpr char16_t ascii_mapped(char16_t unit, direction to) noexcept {
  constexpr char16_t shift = u'a' - u'A';
  if (to == direction::lower) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + shift) : unit;
  }
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - shift) : unit;
}

void map_text(std::span<char16_t> text, direction to) noexcept {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char32_t unit = text[i];
    if (unit < 0x80) {
      text[i] = ascii_mapped(text[i], to);
      continue;
    }
    if (is_high_surrogate(unit) && i + 1 < text.size() && is_low_surrogate(text[i + 1])) {
      const char32_t code_point = 0x10000 + ((unit - 0xD800) << 10) + (text[i + 1] - 0xDC00);
      const char32_t result = mapped(code_point, to);
      // A pair stays a pair: the length never changes.
      if (result >= 0x10000 && result <= 0x10FFFF) {
        text[i] = static_cast<char16_t>(0xD800 + ((result - 0x10000) >> 10));
        text[i + 1] = static_cast<char16_t>(0xDC00 + ((result - 0x10000) & 0x3FF));
      }
      ++i;
      continue;
    }
    if (is_surrogate(unit)) continue;
    const char32_t result = mapped(unit, to);
    if (result < 0x10000 && !is_surrogate(result)) text[i] = static_cast<char16_t>(result);
  }
}

}  // namespace

void to_lower(std::span<char16_t> text) noexcept { map_text(text, direction::lower); }

void to_upper(std::span<char16_t> text) noexcept { map_text(text, direction::upper); }

}  // namespace tx::platform
