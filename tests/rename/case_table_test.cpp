// The looked-up case mapping gives exactly the platform's answers: for every code unit, and for
// text with surrogate pairs and lone surrogates, where the platform takes over.
#include "rename/case_table.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/platform.h"

namespace tx::rename {
namespace {

std::u16string every_unit_but_surrogates() {
  std::u16string text;
  for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
    if (unit < 0xD800 || unit > 0xDFFF) text += static_cast<char16_t>(unit);
  }
  return text;
}

TEST(CaseTable, AgreesWithThePlatform) {
  const std::u16string texts[] = {
      every_unit_but_surrogates(),
      u"Дорога ROAD ёЁ",
      std::u16string{u'A', 0xD801, 0xDC00, u'Б', 0xD801, 0xDC28, u'c'},  // pairs with partners
      std::u16string{u'Q', 0xDC28, u'Ж', 0xD801, u'q', 0xD801},          // lone surrogates
      std::u16string{0xD801, 0xDC00},
      u"",
  };
  for (const std::u16string& text : texts) {
    std::u16string platform_lower = text, platform_upper = text;
    platform::to_lower(platform_lower);
    platform::to_upper(platform_upper);
    std::u16string lower = text, upper = text;
    lower_case_in_place(lower);
    upper_case_in_place(upper);
    EXPECT_TRUE(lower == platform_lower) << "lower, text of " << text.size() << " units";
    EXPECT_TRUE(upper == platform_upper) << "upper, text of " << text.size() << " units";
  }
}

}  // namespace
}  // namespace tx::rename
