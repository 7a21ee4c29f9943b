// Erase: N units from either side, everything to or after a character sequence, the extension,
// and the kinds and settings that change nothing. Empty and hostile names: hostile_input_test.
#include "rename/erase_rule.h"

#include <gtest/gtest.h>

#include <string>

#include "plugin_separators.h"

namespace tx::rename {
namespace {

constexpr erase_kind none = erase_kind::none, n_chars = erase_kind::n_chars,
                     to = erase_kind::everything_to, after = erase_kind::everything_after,
                     extension = erase_kind::extension, unchanged = erase_kind::unchanged;
constexpr erase_side begin = erase_side::begin, end = erase_side::end;

struct erase_row {
  const char* name;
  erase_settings settings;
  std::u16string input;
  std::u16string expected;
};

const erase_row erase_rows[] = {
    // N characters.
    {"from the begin", {n_chars, 2}, u"abcdef", u"cdef"},
    {"from the end", {n_chars, 2, end}, u"abcdef", u"abcd"},
    {"any other side is the end", {n_chars, 2, static_cast<erase_side>(7)}, u"abcdef", u"abcd"},
    {"N equal to the length", {n_chars, 3, end}, u"abc", u""},
    {"N beyond the length", {n_chars, 100}, u"abc", u""},
    {"N zero", {n_chars, 0, end}, u"abc", u"abc"},
    {"N negative", {n_chars, -5}, u"abc", u"abc"},
    {"N at most", {n_chars, 2147483647}, u"abc", u""},
    // Everything to and after.
    {"everything to", {to, 0, begin, u"_"}, u"a_b_c", u"_b_c"},
    {"everything after", {after, 0, begin, u"_"}, u"a_b_c", u"a_b_"},
    {"to, case ignored", {to, 0, begin, u"X"}, u"axbXc", u"xbXc"},
    {"after, case ignored", {after, 0, begin, u"X"}, u"axbXc", u"axbX"},
    {"to, match case", {to, 0, begin, u"X", true}, u"axbXc", u"Xc"},
    {"after, match case", {after, 0, begin, u"x", true}, u"axbXc", u"ax"},
    {"to, not found", {to, 0, begin, u"_"}, u"abc", u"abc"},
    {"to at the start", {to, 0, begin, u"ab"}, u"abc", u"abc"},
    {"after at the end", {after, 0, begin, u"bc"}, u"abc", u"abc"},
    {"to, whole word", {to, 0, begin, u"road", false, true}, u"railroad Road map", u"Road map"},
    {"after, whole word", {after, 0, begin, u"road", false, true}, u"road x roadside y", u"road"},
    {"after, non-overlapping", {after, 0, begin, u"aa"}, u"aaab", u"aa"},
    {"cyrillic", {to, 0, begin, u"дорога"}, u"Старая ДОРОГА 2", u"ДОРОГА 2"},
    {"empty characters", {to}, u"a_b", u"a_b"},
    // Extension.
    {"extension", {extension}, u"layer.tab", u"layer"},
    {"last extension only", {extension}, u"archive.tar.gz", u"archive.tar"},
    {"ends in a dot", {extension}, u"name.", u"name"},
    {"extension after a slash", {extension}, u"dir/file.txt", u"dir/file"},
    {"two dots", {extension}, u"..", u"."},
    {"hidden file", {extension}, u".hidden", u".hidden"},
    {"one dot", {extension}, u".", u"."},
    {"no extension", {extension}, u"noext", u"noext"},
    {"dot before a slash", {extension}, u"a.b/c", u"a.b/c"},
    {"dot before a backslash", {extension}, u"a.b\\c", u"a.b\\c"},
    // No change.
    {"without changes", {unchanged, 5, end, u"a"}, u"abc", u"abc"},
    {"no selection", {none, 5, end, u"a"}, u"abc", u"abc"},
    {"unknown kind", {static_cast<erase_kind>(9), 5, end, u"a"}, u"abc", u"abc"},
};

TEST(Erase, Table) {
  std::u16string result = u"left over";
  for (const erase_row& row : erase_rows) {
    SCOPED_TRACE(row.name);
    const bool changed = erase(row.input, row.settings, testing::plugin_separators(), result);
    EXPECT_EQ(result, row.expected);
    EXPECT_EQ(changed, row.expected != row.input);
  }
}

// The idle settings that the table cannot tell from settings that find nothing to erase.
TEST(Erase, IdleWithoutCharactersAndForUnknownKinds) {
  EXPECT_TRUE(is_idle(erase_settings{after, 5}));
  EXPECT_TRUE(is_idle(erase_settings{static_cast<erase_kind>(17), 5, begin, u"x"}));
}

}  // namespace
}  // namespace tx::rename
