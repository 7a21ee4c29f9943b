// What the backend answers for images it cannot read, and the page-granular pixel memory. What it
// reads is compared with the files through the loaders (tests/resources), in both builds.
#include <gtest/gtest.h>

#include <cstdint>
#include <utility>

#include "platform/platform.h"
#include "tx/host/txk_basic.h"

namespace tx::platform {
namespace {

TEST(BitmapLoading, MissingBitmapsGiveNothing) {
  EXPECT_FALSE(load_bitmap(own_module(), 102));  // a string, not a bitmap
  EXPECT_FALSE(load_bitmap(own_module(), 0));
  EXPECT_FALSE(load_bitmap(own_module(), 70000));
  EXPECT_FALSE(load_bitmap(find_module(TX_BASIC_MODULE_NAME), 100));
  // An icon is not a bitmap.
  EXPECT_FALSE(load_bitmap(find_module(TX_BASIC_MODULE_NAME), 1));
}

TEST(IconLoading, MissingIconsLoadNothing) {
  for (const std::uint32_t id : {0u, 3u, 118u, 70000u}) {
    SCOPED_TRACE(id);
    const icon_planes planes = load_icon(find_module(TX_BASIC_MODULE_NAME), id);
    EXPECT_FALSE(planes.loaded);
    EXPECT_EQ(planes.width, 0);
    EXPECT_EQ(planes.buffer, nullptr);
  }
}

TEST(PageBuffer, HoldsZeroedPagesAndMovesOwnership) {
  page_buffer buffer(10000);
  ASSERT_TRUE(buffer);
  EXPECT_EQ(buffer.size(), 10000u);
  EXPECT_EQ(buffer.data()[0], 0);
  EXPECT_EQ(buffer.data()[9999], 0);
  buffer.data()[9999] = 7;
  const std::uint8_t* const data = buffer.data();
  page_buffer moved(std::move(buffer));
  EXPECT_FALSE(buffer);
  EXPECT_EQ(moved.data(), data);
  EXPECT_EQ(moved.data()[9999], 7);
  page_buffer assigned;
  assigned = std::move(moved);
  EXPECT_FALSE(moved);
  EXPECT_EQ(assigned.size(), 10000u);
  EXPECT_FALSE(page_buffer(0));
}

}  // namespace
}  // namespace tx::platform
