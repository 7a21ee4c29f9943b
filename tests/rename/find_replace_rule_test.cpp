// Find and replace: every mode, the case that unreplaced occurrences take, whole words and the
// settings that change nothing. (Modes outside the list change nothing: hostile_input_test.)
#include "rename/find_replace_rule.h"

#include <gtest/gtest.h>

#include <string>

#include "plugin_separators.h"

namespace tx::rename {
namespace {

struct replace_row {
  const char* name;
  std::u16string search;
  std::u16string replacement;
  bool match_case;
  bool whole_word;
  int mode;
  std::u16string input;
  std::u16string expected;
};

constexpr int all = 0, first = 1, last = 2, all_but_first = 3, all_but_last = 4;

const replace_row replace_rows[] = {
    // «Road road ROAD», «road» → «street», match case off.
    {"all", u"road", u"street", false, false, all, u"Road road ROAD", u"street street street"},
    {"first", u"road", u"street", false, false, first, u"Road road ROAD", u"street road ROAD"},
    {"last", u"road", u"street", false, false, last, u"Road road ROAD", u"road road street"},
    {"all except first", u"road", u"street", false, false, all_but_first, u"Road road ROAD",
     u"road street street"},
    {"all except last stops before the last", u"road", u"street", false, false, all_but_last,
     u"Road road ROAD", u"street street ROAD"},
    {"match case", u"road", u"street", true, false, all, u"Road road ROAD", u"Road street ROAD"},
    {"match case last", u"road", u"street", true, false, last, u"road Road road",
     u"road Road street"},
    // One occurrence.
    {"first of one", u"road", u"street", false, false, first, u"a ROAD", u"a street"},
    {"all except first of one takes the search case", u"road", u"street", false, false,
     all_but_first, u"a ROAD", u"a road"},
    {"all except last of one takes the search case", u"road", u"street", false, false, all_but_last,
     u"a ROAD", u"a road"},
    {"all except last of two", u"road", u"street", false, false, all_but_last, u"ROAD-x-ROAD",
     u"street-x-ROAD"},
    {"all except first of one, match case", u"road", u"street", true, false, all_but_first,
     u"a road", u"a road"},
    // Occurrences.
    {"overlapping candidates", u"aa", u"b", false, false, all, u"aaaa", u"bb"},
    {"overlap left over", u"aa", u"b", false, false, all, u"aaa", u"ba"},
    {"empty replacement deletes", u"road", u"", false, false, all, u"road_map_road", u"_map_"},
    {"replacement containing the search", u"a", u"aa", false, false, all, u"aXa", u"aaXaa"},
    {"none found", u"road", u"street", false, false, all, u"river", u"river"},
    {"case differs with match case", u"road", u"street", true, false, all, u"ROAD", u"ROAD"},
    {"only the case changes", u"Abc", u"abc", false, false, all, u"ABC x", u"abc x"},
    {"cyrillic without case", u"дорога", u"путь", false, false, all, u"Дорога ДОРОГА",
     u"путь путь"},
    // Whole words (which occurrences count as words: find_word_test).
    {"whole word", u"road", u"street", false, true, all, u"roads_road railroad road",
     u"roads_street railroad street"},
    {"whole word last accepted", u"road", u"street", false, true, last, u"road roadx road-x",
     u"road roadx street-x"},
    // Nothing to do.
    {"empty search", u"", u"street", false, false, all, u"road", u"road"},
    {"search equals replacement", u"road", u"road", false, false, all, u"ROAD", u"ROAD"},
    {"empty name", u"road", u"street", false, false, all, u"", u""},
};

TEST(FindReplace, Table) {
  std::u16string result = u"left over from an earlier name";
  for (const replace_row& row : replace_rows) {
    SCOPED_TRACE(row.name);
    const find_replace_settings settings{row.search, row.replacement, row.match_case,
                                         row.whole_word, static_cast<replace_mode>(row.mode)};
    const bool changed = find_replace(row.input, settings, testing::plugin_separators(), result);
    EXPECT_EQ(result, row.expected);
    EXPECT_EQ(changed, row.expected != row.input);
  }
}

}  // namespace
}  // namespace tx::rename
