// Insert: the text before or after the name, as typed.
#include "rename/insert_rule.h"

#include <gtest/gtest.h>

#include <string>

namespace tx::rename {
namespace {

struct insert_row {
  const char* name;
  std::u16string text;
  int mode;
  std::u16string input;
  std::u16string expected;
};

const insert_row insert_rows[] = {
    {"begin", u"old_", 0, u"roads", u"old_roads"},
    {"end", u"_old", 1, u"roads", u"roads_old"},
    {"no separator added", u"Слой", 1, u"дороги", u"дорогиСлой"},
    {"empty name", u"new", 0, u"", u"new"},
    {"empty text", u"", 1, u"roads", u"roads"},
    {"empty text and name", u"", 0, u"", u""},
    {"unknown mode", u"x", 2, u"roads", u"roads"},
    {"negative mode", u"x", -1, u"roads", u"roads"},
};

TEST(Insert, Table) {
  std::u16string result = u"left over";
  for (const insert_row& row : insert_rows) {
    SCOPED_TRACE(row.name);
    const bool changed = insert_text(
        row.input, insert_settings{row.text, static_cast<insert_mode>(row.mode)}, result);
    EXPECT_EQ(result, row.expected);
    EXPECT_EQ(changed, row.expected != row.input);
  }
}

}  // namespace
}  // namespace tx::rename
