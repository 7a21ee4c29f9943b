// The separator set: exactly the 34 units of string 128, the double quote beside them.
#include "rename/separator_set.h"

#include <gtest/gtest.h>

#include <string>

#include "plugin_separators.h"

namespace tx::rename {
namespace {

using testing::plugin_separators;

constexpr std::u16string_view documented = u" .,!()@#№~`;$%:^&?*-_+='<>\t/\\{}[]|";

// Every code unit: a member exactly when string 128 lists it, a separator when it is a member
// or the double quote.
TEST(SeparatorSet, PluginStringHoldsTheDocumentedUnitsAndTheDoubleQuoteSeparatesToo) {
  ASSERT_EQ(testing::separator_string(), documented);
  const separator_set& set = plugin_separators();
  for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const auto u = static_cast<char16_t>(unit);
    const bool listed = documented.find(u) != std::u16string_view::npos;
    ASSERT_EQ(set.contains(u), listed) << static_cast<unsigned>(unit);
    ASSERT_EQ(is_separator(set, u), listed || u == u'"') << static_cast<unsigned>(unit);
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
