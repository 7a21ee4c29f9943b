// The shared search: plain and whole-word occurrences, the right-side cut-off, resuming after a
// rejected occurrence, and long needles against the standard library's search.
#include "rename/find_word.h"

#include <gtest/gtest.h>

#include <string>

#include "plugin_separators.h"

namespace tx::rename {
namespace {

struct find_row {
  const char* name;
  std::u16string haystack;
  std::u16string needle;
  std::size_t from;
  bool whole_word;
  std::size_t expected;
};

const find_row find_rows[] = {
    {"plain", u"a cat", u"cat", 0, false, 2},
    {"plain inside a word", u"bobcats", u"cat", 0, false, 3},
    {"from skips earlier", u"cat cat", u"cat", 1, false, 4},
    {"from at the occurrence", u"cat cat", u"cat", 4, false, 4},
    {"none", u"dog", u"cat", 0, false, npos},
    {"case matters", u"Cat", u"cat", 0, false, npos},
    {"from past the end", u"cat", u"cat", 4, false, npos},
    {"empty needle", u"cat", u"", 0, false, npos},
    {"empty haystack", u"", u"cat", 0, true, npos},
    {"needle longer than haystack", u"ca", u"cat", 0, false, npos},
    {"word at start", u"cat dog", u"cat", 0, true, 0},
    {"word at end", u"dog cat", u"cat", 0, true, 4},
    {"word alone", u"cat", u"cat", 0, true, 0},
    {"one trailing unit is not tested", u"cats", u"cat", 0, true, 0},
    {"two trailing units are", u"catsx", u"cat", 0, true, npos},
    {"trailing separator", u"cat!x", u"cat", 0, true, 0},
    {"letter before", u"bobcat", u"cat", 0, true, npos},
    {"rejected then accepted", u"catsx cat", u"cat", 0, true, 6},
    {"double quote both sides", u"x\"cat\"yz", u"cat", 0, true, 2},
    {"numero sign and tab", u"a№cat\tzz", u"cat", 0, true, 2},
    {"brackets", u"{cat}[cat]", u"cat", 2, true, 6},
    // The occurrence at 3 is bounded, but it overlaps the rejected one at 1: the search goes on
    // from 4 and finds nothing.
    {"resumes after the rejected occurrence", u"xa a a", u"a a", 0, true, npos},
    {"overlapping candidates", u"aaaa", u"aa", 1, false, 1},
    {"cyrillic", u"река_дорога", u"дорога", 0, true, 5},
    {"embedded nul is no separator", std::u16string(u"\0cat\0zz", 7), u"cat", 0, true, npos},
};

TEST(FindWord, Table) {
  for (const find_row& row : find_rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(
        find_word(row.haystack, row.needle, row.from, row.whole_word, testing::plugin_separators()),
        row.expected);
  }
}

// Every start position agrees with the standard library's search, for short needles (a scan,
// four candidates a step) and long ones (a table: inline up to 64 units, on the heap beyond).
TEST(FindWord, NeedlesAgreeWithStandardSearch) {
  // «`» is «a» with its lowest bit cleared: the four-lane scan may flag it falsely after an «a».
  std::u16string haystack = u"a`a`ba`ab`aaa`";
  for (int block = 0; block < 40; ++block) {
    haystack += std::u16string(static_cast<std::size_t>(block % 7 + 1), u'a') + u"b";
  }
  haystack += std::u16string(150, u'a');
  for (const std::size_t length : {1u, 2u, 3u, 5u, 16u, 17u, 18u, 40u, 64u, 65u, 100u, 149u}) {
    const std::size_t starts[] = {0, 1, 3, 7, 150, haystack.size() - length};
    for (const std::size_t start : starts) {
      const std::u16string needle = haystack.substr(start, length);
      const separator_set& separators = testing::plugin_separators();
      for (std::size_t from = 0; from <= haystack.size() + 1; ++from) {
        ASSERT_EQ(find_word(haystack, needle, from, false, separators),
                  std::u16string_view(haystack).find(needle, from))
            << "length " << length << " start " << start << " from " << from;
      }
    }
  }
}

}  // namespace
}  // namespace tx::rename
