#include "tx_host/services/utf.h"

#include <gtest/gtest.h>

namespace tx::host {
namespace {

struct utf_case {
  const char* name;
  std::u16string utf16;
  std::string utf8;
};

TEST(Utf, ConvertsBothWaysLosslessly) {
  const utf_case cases[] = {
      {"empty", u"", ""},
      {"ascii", u"abc\tdef", "abc\tdef"},
      {"cyrillic", u"Переименование",
       "\xD0\x9F\xD0\xB5\xD1\x80\xD0\xB5\xD0\xB8\xD0\xBC\xD0\xB5"
       "\xD0\xBD\xD0\xBE\xD0\xB2\xD0\xB0\xD0\xBD\xD0\xB8\xD0\xB5"},
      {"numero sign", u"\u2116", "\xE2\x84\x96"},
      {"outside the basic plane", u"\U0001F600", "\xF0\x9F\x98\x80"},
      {"last code point", u"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
  };
  for (const utf_case& c : cases) {
    EXPECT_EQ(to_utf8(c.utf16), c.utf8) << c.name;
    EXPECT_EQ(to_utf16(c.utf8), c.utf16) << c.name;
  }
}

TEST(Utf, UnpairedSurrogateBecomesReplacementCharacter) {
  const utf_case cases[] = {
      {"lone high", std::u16string{char16_t(0xD800), u'a'},
       "\xEF\xBF\xBD"
       "a"},
      {"lone low", std::u16string{u'a', char16_t(0xDC00)}, "a\xEF\xBF\xBD"},
      {"high at the end", std::u16string{u'a', char16_t(0xDBFF)}, "a\xEF\xBF\xBD"},
      {"two highs", std::u16string{char16_t(0xD800), char16_t(0xD800)}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
  };
  for (const utf_case& c : cases) EXPECT_EQ(to_utf8(c.utf16), c.utf8) << c.name;
}

TEST(Utf, MalformedUtf8BecomesOneReplacementPerByte) {
  const std::u16string r(1, char16_t(0xFFFD));
  const utf_case cases[] = {
      {"stray continuation", u"a" + r + u"b",
       "a\x80"
       "b"},
      {"overlong slash", r + r, "\xC0\xAF"},
      {"truncated at the end", u"x" + r + r, "x\xE2\x84"},
      {"encoded surrogate", r + r + r, "\xED\xA0\x80"},
      {"above the last code point", r + r + r + r, "\xF4\x90\x80\x80"},
      {"invalid lead byte", r + u"z",
       "\xFF"
       "z"},
      {"lead followed by ascii", r + u"ab",
       "\xC3"
       "ab"},
  };
  for (const utf_case& c : cases) EXPECT_EQ(to_utf16(c.utf8), c.utf16) << c.name;
}

}  // namespace
}  // namespace tx::host
