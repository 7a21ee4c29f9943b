// Erase: N units from either side, everything to or after a character sequence, the extension,
// and the kinds and settings that change nothing. Empty and hostile names: hostile_input_test.
#include "rename/erase_rule.h"

#include <gtest/gtest.h>

#include <string>

#include "plugin_separators.h"
#include "rename/extension_rule.h"

namespace tx::rename {
namespace {

constexpr int none = -1, n_chars = 0, to = 1, after = 2, extension = 3, unchanged = 4;
constexpr int begin = 0, end = 1;

struct erase_row {
  const char* name;
  int kind;
  int count;
  int side;
  std::u16string characters;
  bool match_case;
  bool whole_word;
  std::u16string input;
  std::u16string expected;
};

const erase_row erase_rows[] = {
    // N characters.
    {"from the begin", n_chars, 2, begin, u"", false, false, u"abcdef", u"cdef"},
    {"from the end", n_chars, 2, end, u"", false, false, u"abcdef", u"abcd"},
    {"any other side is the end", n_chars, 2, 7, u"", false, false, u"abcdef", u"abcd"},
    {"N equal to the length", n_chars, 3, end, u"", false, false, u"abc", u""},
    {"N beyond the length", n_chars, 100, begin, u"", false, false, u"abc", u""},
    {"N zero", n_chars, 0, end, u"", false, false, u"abc", u"abc"},
    {"N negative", n_chars, -5, begin, u"", false, false, u"abc", u"abc"},
    {"N at most", n_chars, 2147483647, begin, u"", false, false, u"abc", u""},
    // Everything to and after.
    {"everything to", to, 0, 0, u"_", false, false, u"a_b_c", u"_b_c"},
    {"everything after", after, 0, 0, u"_", false, false, u"a_b_c", u"a_b_"},
    {"to, case ignored", to, 0, 0, u"X", false, false, u"axbXc", u"xbXc"},
    {"after, case ignored", after, 0, 0, u"X", false, false, u"axbXc", u"axbX"},
    {"to, match case", to, 0, 0, u"X", true, false, u"axbXc", u"Xc"},
    {"after, match case", after, 0, 0, u"x", true, false, u"axbXc", u"ax"},
    {"to, not found", to, 0, 0, u"_", false, false, u"abc", u"abc"},
    {"after, not found", after, 0, 0, u"_", false, false, u"abc", u"abc"},
    {"to at the start", to, 0, 0, u"ab", false, false, u"abc", u"abc"},
    {"after at the end", after, 0, 0, u"bc", false, false, u"abc", u"abc"},
    {"to, whole word", to, 0, 0, u"road", false, true, u"railroad Road map", u"Road map"},
    {"after, whole word", after, 0, 0, u"road", false, true, u"road x roadside y", u"road"},
    {"after, one trailing unit", after, 0, 0, u"cat", false, true, u"a cat b cats", u"a cat b cat"},
    {"after, two trailing units", after, 0, 0, u"cat", false, true, u"a cat b catsx", u"a cat"},
    {"after, non-overlapping", after, 0, 0, u"aa", false, false, u"aaab", u"aa"},
    {"cyrillic", to, 0, 0, u"дорога", false, false, u"Старая ДОРОГА 2", u"ДОРОГА 2"},
    {"empty characters", to, 0, 0, u"", false, false, u"a_b", u"a_b"},
    // Extension.
    {"extension", extension, 0, 0, u"", false, false, u"layer.tab", u"layer"},
    {"last extension only", extension, 0, 0, u"", false, false, u"archive.tar.gz", u"archive.tar"},
    // No change.
    {"without changes", unchanged, 5, end, u"a", false, false, u"abc", u"abc"},
    {"no selection", none, 5, end, u"a", false, false, u"abc", u"abc"},
    {"unknown kind", 9, 5, end, u"a", false, false, u"abc", u"abc"},
};

TEST(Erase, Table) {
  std::u16string result = u"left over";
  for (const erase_row& row : erase_rows) {
    SCOPED_TRACE(row.name);
    const erase_settings settings{static_cast<erase_kind>(row.kind),
                                  row.count,
                                  static_cast<erase_side>(row.side),
                                  row.characters,
                                  row.match_case,
                                  row.whole_word};
    const bool changed = erase(row.input, settings, testing::plugin_separators(), result);
    EXPECT_EQ(result, row.expected);
    EXPECT_EQ(changed, row.expected != row.input);
  }
}

TEST(Erase, CutExtension) {
  const struct {
    std::u16string_view name;
    std::u16string_view expected;
  } rows[] = {
      {u"layer.tab", u"layer"},
      {u"archive.tar.gz", u"archive.tar"},
      {u".hidden", u".hidden"},
      {u"noext", u"noext"},
      {u"a.b/c", u"a.b/c"},
      {u"a.b\\c", u"a.b\\c"},
      {u"name.", u"name"},
      {u"dir/file.txt", u"dir/file"},
      {u"..", u"."},
      {u".", u"."},
      {u"", u""},
      {u"слой.TAB", u"слой"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(cut_extension(row.name), row.expected);
  }
}

TEST(Erase, IdleByKind) {
  const struct {
    int kind;
    int count;
    std::u16string_view characters;
    bool idle;
  } rows[] = {
      {n_chars, 0, u"x", true}, {n_chars, -1, u"x", true},  {n_chars, 1, u"", false},
      {to, 5, u"", true},       {to, 0, u"x", false},       {after, 5, u"", true},
      {after, 0, u"x", false},  {extension, 0, u"", false}, {unchanged, 5, u"x", true},
      {none, 5, u"x", true},    {17, 5, u"x", true},
  };
  for (const auto& row : rows) {
    const erase_settings settings{static_cast<erase_kind>(row.kind), row.count, erase_side::begin,
                                  row.characters};
    EXPECT_EQ(is_idle(settings), row.idle) << row.kind << " " << row.count;
  }
}

}  // namespace
}  // namespace tx::rename
