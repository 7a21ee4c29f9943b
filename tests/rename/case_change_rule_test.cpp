// Case change: each mode on Latin and Cyrillic, the first letter after leading separators, and
// the values that change nothing.
#include "rename/case_change_rule.h"

#include <gtest/gtest.h>

#include <string>

#include "plugin_separators.h"

namespace tx::rename {
namespace {

struct case_row {
  const char* name;
  int mode;
  std::u16string input;
  std::u16string expected;
};

constexpr int lower = 0, upper = 1, first_letter = 2, unchanged = 3;

const case_row case_rows[] = {
    {"lower", lower, u"My Layer 2", u"my layer 2"},
    {"upper", upper, u"My Layer 2", u"MY LAYER 2"},
    {"first letter lowers later words", first_letter, u"  my LAYER", u"  My layer"},
    {"first letter without case", first_letter, u"(2D) scene", u"(2d) scene"},
    {"first letter after a double quote", first_letter, u"\"quoted\" NAME", u"\"Quoted\" name"},
    {"separators only", first_letter, u"--- ", u"--- "},
    {"already lower", lower, u"roads", u"roads"},
    {"cyrillic lower", lower, u"ДОРОГИ и Реки", u"дороги и реки"},
    {"cyrillic upper", upper, u"ДОРОГИ и Реки", u"ДОРОГИ И РЕКИ"},
    {"cyrillic first letter", first_letter, u"№ ёлки И ПАЛКИ", u"№ Ёлки и палки"},
    {"cyrillic already first letter", first_letter, u"Дороги", u"Дороги"},
    {"unchanged", unchanged, u"My Layer", u"My Layer"},
    {"unknown mode", 9, u"My Layer", u"My Layer"},
    {"negative mode", -1, u"My Layer", u"My Layer"},
};

TEST(CaseChange, Table) {
  std::u16string result = u"left over";
  for (const case_row& row : case_rows) {
    SCOPED_TRACE(row.name);
    const bool changed = change_case(row.input, static_cast<case_mode>(row.mode),
                                     testing::plugin_separators(), result);
    EXPECT_EQ(result, row.expected);
    EXPECT_EQ(changed, row.expected != row.input);
  }
}

// Both builds map ASCII by its letter pairs alone (the native backend without asking the C
// library's tables).
TEST(CaseChange, AsciiMapsByLetterPairs) {
  std::u16string ascii, lowered, raised;
  for (char16_t unit = 0; unit < 128; ++unit) {
    ascii += unit;
    lowered += unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
    raised += unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
  }
  std::u16string result;
  EXPECT_TRUE(change_case(ascii, case_mode::lower, testing::plugin_separators(), result));
  EXPECT_EQ(result, lowered);
  EXPECT_TRUE(change_case(ascii, case_mode::upper, testing::plugin_separators(), result));
  EXPECT_EQ(result, raised);
}

}  // namespace
}  // namespace tx::rename
