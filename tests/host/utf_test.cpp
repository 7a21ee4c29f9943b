#include "tx_host/services/utf.h"

#include <gtest/gtest.h>

namespace tx::host {
namespace {

TEST(Utf, ConvertsBothWaysLosslesslyAndWhatIsMalformedIntoReplacementCharacters) {
  enum class way { both, to_utf8, to_utf16 };
  struct utf_case {
    const char* name;
    way checked;
    std::u16string utf16;
    std::string utf8;
  };
  const std::u16string r(1, char16_t(0xFFFD));
  const utf_case cases[] = {
      {"empty", way::both, u"", ""},
      {"ascii", way::both, u"abc\tdef", "abc\tdef"},
      {"cyrillic", way::both, u"Переименование",
       "\xD0\x9F\xD0\xB5\xD1\x80\xD0\xB5\xD0\xB8\xD0\xBC\xD0\xB5"
       "\xD0\xBD\xD0\xBE\xD0\xB2\xD0\xB0\xD0\xBD\xD0\xB8\xD0\xB5"},
      {"numero sign", way::both, u"\u2116", "\xE2\x84\x96"},
      {"outside the basic plane", way::both, u"\U0001F600", "\xF0\x9F\x98\x80"},
      {"last code point", way::both, u"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
      // An unpaired surrogate becomes one replacement character.
      {"lone high", way::to_utf8, std::u16string{char16_t(0xD800), u'a'},
       "\xEF\xBF\xBD"
       "a"},
      {"lone low", way::to_utf8, std::u16string{u'a', char16_t(0xDC00)}, "a\xEF\xBF\xBD"},
      {"high at the end", way::to_utf8, std::u16string{u'a', char16_t(0xDBFF)}, "a\xEF\xBF\xBD"},
      // Malformed UTF-8 becomes one replacement character per byte.
      {"stray continuation", way::to_utf16, u"a" + r + u"b",
       "a\x80"
       "b"},
      {"overlong slash", way::to_utf16, r + r, "\xC0\xAF"},
      {"truncated at the end", way::to_utf16, u"x" + r + r, "x\xE2\x84"},
      {"encoded surrogate", way::to_utf16, r + r + r, "\xED\xA0\x80"},
      {"above the last code point", way::to_utf16, r + r + r + r, "\xF4\x90\x80\x80"},
      {"invalid lead byte", way::to_utf16, r + u"z",
       "\xFF"
       "z"},
  };
  for (const utf_case& c : cases) {
    if (c.checked != way::to_utf16) {
      EXPECT_EQ(to_utf8(c.utf16), c.utf8) << c.name;
    }
    if (c.checked != way::to_utf8) {
      EXPECT_EQ(to_utf16(c.utf8), c.utf16) << c.name;
    }
  }
}

}  // namespace
}  // namespace tx::host
