// Finding modules: the program's own (which links the plug-in's resources) and a loaded host
// library by its Windows file name; nothing is ever loaded by the lookup.
#include <gtest/gtest.h>

#include "platform/platform.h"
#include "tx/host/txk_basic.h"

namespace tx::platform {
namespace {

TEST(Modules, BasicLibraryFoundByItsWindowsName) {
  // This program imports txk_basic, so it is loaded; it starts in Russian.
  EXPECT_EQ(tx_res_get_lng(), 0);
  const module basic = find_module(TX_BASIC_MODULE_NAME);
  ASSERT_TRUE(basic);
  EXPECT_NE(basic.handle(), own_module().handle());
  EXPECT_EQ(stored_string(basic, 99), std::u16string_view(u"ОК\0", 3));
}

TEST(Modules, UnknownOrMalformedNamesFindNothing) {
  for (const std::u16string_view name :
       {std::u16string_view(u"txk_nowhere.dll"), std::u16string_view(u""),
        std::u16string_view(u"txk_basic\0.dll", 14), std::u16string_view(u"тхк.dll")}) {
    EXPECT_FALSE(find_module(name));
  }
}

TEST(Modules, EmptyModuleHasNoResources) {
  const module none;
  EXPECT_TRUE(stored_string(none, 10).empty());
  EXPECT_TRUE(resource_data(none, text_data_type, 1).empty());
  EXPECT_FALSE(load_bitmap(none, 100));
  EXPECT_FALSE(load_icon(none, 1).loaded);
}

}  // namespace
}  // namespace tx::platform
