// Every SDK header compiles as C and as C++, alone and together, and both languages agree on the
// size of everything that crosses the boundary.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "all_headers.h"

extern "C" const size_t tx_sdk_sizes_in_c[];
extern "C" const size_t tx_sdk_count_in_c;

namespace {

TEST(SdkLayout, CAndCppAgreeOnEveryTable) {
#define TX_LAYOUT(type) sizeof(type),
  const std::vector<size_t> in_cpp{
#include "sdk_layout.inc"
  };
#undef TX_LAYOUT
#define TX_LAYOUT(type) #type,
  const std::vector<const char*> names{
#include "sdk_layout.inc"
  };
#undef TX_LAYOUT
  ASSERT_EQ(tx_sdk_count_in_c, in_cpp.size());
  for (size_t i = 0; i < in_cpp.size(); ++i) {
    EXPECT_EQ(tx_sdk_sizes_in_c[i], in_cpp[i]) << names[i];
    EXPECT_EQ(in_cpp[i] % sizeof(void*), 0u) << names[i];
  }
}

TEST(SdkLayout, UtilityKeyHasTwentyFiveCharacters) {
  const std::u16string utility = TX_UTILITY_NAMESPACE_KEY;
  const std::u16string localizer = TX_LOCALIZER_NAMESPACE_KEY;
  EXPECT_EQ(utility.size(), 25u);
  EXPECT_TRUE(utility.ends_with(u"/utility"));
  EXPECT_TRUE(localizer.ends_with(u"/localizer"));
}

}  // namespace
