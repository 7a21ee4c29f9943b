// The page-granular pixel memory. What the backend reads, and what it answers for images it
// cannot read, is checked through the loaders (tests/resources), in both builds.
#include <gtest/gtest.h>

#include <cstdint>
#include <utility>

#include "platform/platform.h"

namespace tx::platform {
namespace {

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
