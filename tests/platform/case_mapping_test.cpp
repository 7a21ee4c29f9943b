// Case mapping, the same answers in both builds: the Windows case tables under Wine and the C
// library's wide-character tables natively. Plain Latin and Cyrillic, and every ASCII unit, are
// mapped by the rename rules' own tests (tests/rename) through these same calls.
#include <gtest/gtest.h>

#include <string>

#include "platform/platform.h"

namespace tx::platform {
namespace {

using namespace std::string_literals;

struct case_row {
  const char* name;
  std::u16string text;
  std::u16string lower;
  std::u16string upper;
};

const case_row case_rows[] = {
    {"yo and the numero sign", u"Ёлка и ёж №", u"ёлка и ёж №", u"ЁЛКА И ЁЖ №"},
    {"ukrainian", u"Їжак Ґанок Єнот Іван", u"їжак ґанок єнот іван", u"ЇЖАК ҐАНОК ЄНОТ ІВАН"},
    {"latin-1 and greek", u"ÀÉÎõüÿ ΑΒΓδεζ", u"àéîõüÿ αβγδεζ", u"ÀÉÎÕÜŸ ΑΒΓΔΕΖ"},
    // Letters whose partner maps elsewhere keep their case both ways.
    {"one-way letters", u"İıςẞǅµß", u"İıςẞǅµß", u"İıςẞǅµß"},
    {"embedded nul", u"Ab\0Вг"s, u"ab\0вг"s, u"AB\0ВГ"s},
    {"surrogate pair", u"\U00010400\U00010428", u"\U00010428\U00010428", u"\U00010400\U00010400"},
    {"lone surrogates", std::u16string{0xD801, u'q', 0xDC28, u'Q'},
     std::u16string{0xD801, u'q', 0xDC28, u'q'}, std::u16string{0xD801, u'Q', 0xDC28, u'Q'}},
    {"empty", u"", u"", u""},
};

TEST(CaseMapping, LowerAndUpperTable) {
  for (const case_row& row : case_rows) {
    SCOPED_TRACE(row.name);
    std::u16string lower = row.text;
    to_lower(lower);
    EXPECT_EQ(lower, row.lower);
    std::u16string upper = row.text;
    to_upper(upper);
    EXPECT_EQ(upper, row.upper);
  }
}

TEST(CaseMapping, SpanMapsOnlyItsOwnUnits) {
  std::u16string text = u"ABCDЖЗ";
  to_lower(std::span<char16_t>(text).subspan(1, 3));
  EXPECT_EQ(text, u"AbcdЖЗ");
  to_upper(std::span<char16_t>(text).subspan(0, 2));
  EXPECT_EQ(text, u"ABcdЖЗ");
}

}  // namespace
}  // namespace tx::platform
