// The separator set: exactly the 34 units of string 128, the double quote beside them.
#include "rename/separator_set.h"

#include <gtest/gtest.h>

#include <string>

#include "plugin_separators.h"

namespace tx::rename {
namespace {

using testing::plugin_separators;

constexpr std::u16string_view documented = u" .,!()@#№~`;$%:^&?*-_+='<>\t/\\{}[]|";

TEST(SeparatorSet, PluginStringHoldsTheDocumentedUnits) {
  ASSERT_EQ(testing::separator_string(), documented);
  const separator_set& set = plugin_separators();
  std::size_t members = 0;
  for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const auto u = static_cast<char16_t>(unit);
    if (!set.contains(u)) continue;
    ++members;
    EXPECT_NE(documented.find(u), std::u16string_view::npos)
        << "unexpected member " << static_cast<unsigned>(unit);
  }
  EXPECT_EQ(members, 34u);
}

TEST(SeparatorSet, DoubleQuoteSeparatesWithoutBeingAMember) {
  const separator_set& set = plugin_separators();
  EXPECT_FALSE(set.contains(u'"'));
  EXPECT_TRUE(is_separator(set, u'"'));
  for (const char16_t unit : std::u16string_view(u" \t№_\\")) {
    EXPECT_TRUE(is_separator(set, unit)) << static_cast<int>(unit);
  }
  for (const char16_t unit : std::u16string_view(u"aZ09ЯёЖ\0\x2117\xFFFF", 10)) {
    EXPECT_FALSE(is_separator(set, unit)) << static_cast<int>(unit);
  }
}

TEST(SeparatorSet, AnyTextBuildsASet) {
  const separator_set set(u"b\x7F\x80№\xFFFF№b");
  for (const char16_t unit : std::u16string_view(u"b\x7F\x80№\xFFFF")) {
    EXPECT_TRUE(set.contains(unit)) << static_cast<int>(unit);
  }
  for (const char16_t unit : std::u16string_view(u"a c\x7E\x81\xFFFE")) {
    EXPECT_FALSE(set.contains(unit)) << static_cast<int>(unit);
  }
  const separator_set empty;
  EXPECT_FALSE(empty.contains(u' '));
  EXPECT_TRUE(is_separator(empty, u'"'));
}

}  // namespace
}  // namespace tx::rename
