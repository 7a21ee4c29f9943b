// The SDK's headers compile as C and as C++, alone and together, and both languages agree on the
// size of everything that crosses the boundary.
#include <gtest/gtest.h>

#include <cstring>
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

TEST(SdkLayout, InterfaceNamesFollowTheVersionedPattern) {
  const char* names[] = {
      TX_SERVICE_VISITOR_INTERFACE_0,
      TX_REFERENT_INTERFACE_1,
      TX_REFERRER_INTERFACE_1,
      TX_UTILITY_INTERFACE_4,
      TX_UTILITY_VISITOR_INTERFACE_2,
      TX_UTILITY_SERVICE_INTERFACE_2,
      TX_UTILITY_SERVICE_VISITOR_INTERFACE_2,
      TX_MODAL_DIALOG_VIEW_INTERFACE_101,
      TX_MODAL_DIALOG_INTERFACE_101,
      TX_MODAL_DIALOG_VISITOR_INTERFACE_101,
      TX_MODAL_DIALOG_SERVICE_INTERFACE_102,
      TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102,
      TX_SERVICE_REGISTRY_VISITOR_INTERFACE_0,
      TX_SERVICE_REGISTRY_INTERFACE_0,
      TX_LOCALIZER_INTERFACE_1,
      TX_LOCALIZER_CLIENT_INTERFACE_0,
      TX_LOCALIZER_SERVICE_VISITOR_INTERFACE_1,
      TX_LOCALIZER_SERVICE_INTERFACE_1,
      TX_STRING_VISITOR_INTERFACE_0,
      TX_THRICE_INTERLEAVED_BYTES_VISITOR_INTERFACE_0,
      TX_MASKED_BITMAP_INTERFACE_0,
      TX_MASKED_BITMAP_VISITOR_INTERFACE_0,
  };
  for (const char* name : names) {
    const char* marker = std::strstr(name, "_interface_");
    ASSERT_NE(marker, nullptr) << name;
    EXPECT_EQ(std::strncmp(name, "tx_", 3), 0) << name;
    const char* version = marker + std::strlen("_interface_");
    ASSERT_NE(*version, '\0') << name;
    for (const char* c = version; *c != '\0'; ++c) EXPECT_TRUE(*c >= '0' && *c <= '9') << name;
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
