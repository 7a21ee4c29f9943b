// Masked bitmaps from txk_basic's icon and cursor, as the host sees them through the interface:
// size, colour plane and mask plane, top row first.
#include "resources/masked_bitmap.h"

#include <gtest/gtest.h>

#include <string>

#include "host_doubles.h"
#include "resource_files.h"
#include "resources/loader.h"

namespace tx::resource {
namespace {

using test::masked_bitmap_sink;

struct icon_row {
  std::int32_t reference;
  std::string file;
  std::int32_t hot_x;
  std::int32_t hot_y;
};

TEST(MaskedBitmap, PlanesTopRowFirst) {
  const icon_row rows[] = {
      {-1, test::basic_resource("icons/folder.ico"), 16, 16},
      {-2, test::basic_resource("icons/arrow.cur"), 1, 1},
  };
  for (const icon_row& row : rows) {
    SCOPED_TRACE(row.file);
    const auto file = test::read_icon(row.file);
    ASSERT_TRUE(file);
    masked_bitmap_sink visitor;
    EXPECT_TRUE(load_masked_bitmap(row.reference, visitor.pointer()));
    ASSERT_EQ(visitor.bitmaps.size(), 1u);
    const auto& seen = visitor.bitmaps.front();
    EXPECT_TRUE(seen.answers_own_name);
    EXPECT_EQ(seen.width, 32);
    EXPECT_EQ(seen.height, 32);

    ASSERT_EQ(seen.colour.calls.size(), 1u);
    ASSERT_EQ(seen.mask.calls.size(), 1u);
    const test::bytes_call& colour = seen.colour.calls.front();
    const test::bytes_call& mask = seen.mask.calls.front();
    // Top row first: the row step goes back through the stored rows.
    EXPECT_EQ(colour.shape(), (std::vector<std::int32_t>{32, 32, 3}));
    EXPECT_EQ(
        (std::vector<std::ptrdiff_t>{colour.row_step, colour.column_step, colour.channel_step}),
        (std::vector<std::ptrdiff_t>{-32 * 3, 3, 1}));
    EXPECT_EQ(mask.shape(), (std::vector<std::int32_t>{32, 32, 1}));
    EXPECT_EQ((std::vector<std::ptrdiff_t>{mask.row_step, mask.column_step, mask.channel_step}),
              (std::vector<std::ptrdiff_t>{-32, 1, 1}));

    for (std::int32_t r = 0; r < 32; ++r) {
      const auto stored_row = static_cast<std::size_t>(31 - r);
      for (std::int32_t c = 0; c < 32; ++c) {
        const std::size_t i = stored_row * 32 + static_cast<std::size_t>(c);
        for (std::int32_t k = 0; k < 3; ++k) {
          ASSERT_EQ(colour.at(r, c, k), file->colour[i][static_cast<std::size_t>(k)])
              << r << "," << c;
        }
        ASSERT_EQ(mask.at(r, c, 0), file->and_mask[i] ? 255 : 0) << r << "," << c;
      }
    }

    masked_bitmap image(row.reference);
    EXPECT_EQ(image.hot_x(), row.hot_x);
    EXPECT_EQ(image.hot_y(), row.hot_y);
    const custom_pointer pair = pointer_to<masked_bitmap_impl>(&image);
    EXPECT_TRUE(same(test::ask(pair, "tx_bitmap_interface_0"), {}));  // its own name only
  }
}

TEST(MaskedBitmap, MissingIconIsHandedOverEmptyAndANullVisitorStillLoads) {
  for (const std::int32_t reference : {-3, -118, 1, 0, -70000}) {
    SCOPED_TRACE(reference);
    masked_bitmap_sink visitor;
    EXPECT_FALSE(load_masked_bitmap(reference, visitor.pointer()));
    ASSERT_EQ(visitor.bitmaps.size(), 1u);
    EXPECT_EQ(visitor.bitmaps[0].width, 0);
    EXPECT_EQ(visitor.bitmaps[0].height, 0);
    EXPECT_TRUE(visitor.bitmaps[0].colour.calls.empty());
    EXPECT_TRUE(visitor.bitmaps[0].mask.calls.empty());
  }
  EXPECT_TRUE(load_masked_bitmap(-1, {}));
}

TEST(MaskedBitmap, OverriddenSizeLeavesThePlanes) {
  masked_bitmap image(-1);
  ASSERT_TRUE(image.loaded());
  image.override_size(20, 24);
  EXPECT_EQ(image.width(), 20);
  EXPECT_EQ(image.height(), 24);
  test::bytes_sink colour;
  image.visit_colour(colour.pointer());
  ASSERT_EQ(colour.calls.size(), 1u);
  EXPECT_EQ(colour.calls[0].shape(), (std::vector<std::int32_t>{32, 32, 3}));
}

}  // namespace
}  // namespace tx::resource
