// Bitmaps handed to the host: what the visitor is given (steps, channels, the order of rows),
// that the pixels are the files', and the transparent option.
#include "resources/bitmap.h"

#include <gtest/gtest.h>

#include <string>

#include "host_doubles.h"
#include "resource_files.h"
#include "resources/loader.h"

namespace tx::resource {
namespace {

using test::bytes_call;
using test::bytes_recorder;
using test::fake_localizer;
using test::localizer_guard;

struct image_row {
  std::int32_t reference;
  std::string file;
};

const image_row image_rows[] = {
    {100, test::plugin_resource("bitmaps/undo.bmp")},
    {101, test::plugin_resource("bitmaps/redo.bmp")},
    {103, test::plugin_resource("bitmaps/expand.bmp")},
    {104, test::plugin_resource("bitmaps/collapse.bmp")},
    {-118, test::basic_resource("bitmaps/select_all.bmp")},
    {-119, test::basic_resource("bitmaps/clear_selection.bmp")},
    {-120, test::basic_resource("bitmaps/invert_selection.bmp")},
};

bytes_call single_visit(std::int32_t reference, bool stored_order) {
  bytes_recorder visitor;
  EXPECT_TRUE(load_bitmap(reference, visitor.pointer(), stored_order));
  EXPECT_EQ(visitor.calls.size(), 1u);
  return visitor.calls.empty() ? bytes_call{} : visitor.calls.front();
}

TEST(BitmapLoading, TopRowFirstWithThreeChannels) {
  for (const image_row& row : image_rows) {
    SCOPED_TRACE(row.file);
    const auto file = test::read_bmp24(row.file);
    ASSERT_TRUE(file);
    const bytes_call call = single_visit(row.reference, false);
    EXPECT_EQ(call.rows, 16);
    EXPECT_EQ(call.row_step, -16 * 4);
    EXPECT_EQ(call.columns, 16);
    EXPECT_EQ(call.column_step, 4);
    EXPECT_EQ(call.channels, 3);
    EXPECT_EQ(call.channel_step, 1);
    ASSERT_EQ(call.seen.size(), 16u * 16u * 3u);
    for (std::int32_t r = 0; r < 16; ++r) {
      for (std::int32_t c = 0; c < 16; ++c) {
        for (std::int32_t k = 0; k < 3; ++k) {
          // The first row visited is the file's top row, its last stored one.
          ASSERT_EQ(call.at(r, c, k), file->at(c, 15 - r)[k]) << r << "," << c << "," << k;
        }
      }
    }
  }
}

TEST(BitmapLoading, StoredOrderIsTheSameRowsBottomFirst) {
  for (const image_row& row : image_rows) {
    SCOPED_TRACE(row.file);
    const bytes_call top_first = single_visit(row.reference, false);
    const bytes_call stored = single_visit(row.reference, true);
    EXPECT_EQ(stored.rows, 16);
    EXPECT_EQ(stored.row_step, 16 * 4);
    EXPECT_EQ(stored.columns, 16);
    EXPECT_EQ(stored.column_step, 4);
    EXPECT_EQ(stored.channels, 3);
    EXPECT_EQ(stored.channel_step, 1);
    ASSERT_EQ(stored.seen.size(), top_first.seen.size());
    for (std::int32_t r = 0; r < 16; ++r) {
      for (std::int32_t c = 0; c < 16; ++c) {
        for (std::int32_t k = 0; k < 3; ++k) {
          ASSERT_EQ(stored.at(r, c, k), top_first.at(15 - r, c, k));
        }
      }
    }
  }
}

TEST(BitmapLoading, MissingBitmapsCallNothing) {
  // 102 is a string without an image; txk_basic has no bitmap 100; 0 names nothing.
  for (const std::int32_t reference : {102, -100, 0, 1, 70000, -70000}) {
    SCOPED_TRACE(reference);
    bytes_recorder visitor;
    EXPECT_FALSE(load_bitmap(reference, visitor.pointer()));
    EXPECT_TRUE(visitor.calls.empty());
  }
}

TEST(BitmapLoading, NullVisitorStillReportsFound) {
  EXPECT_TRUE(load_bitmap(100, {}));
  EXPECT_TRUE(load_bitmap(-119, {}, true));
}

TEST(BitmapLoading, LocalizerAloneAnswersOwnReferences) {
  fake_localizer localizer;
  const localizer_guard guard(localizer.pointer());
  bytes_recorder visitor;
  EXPECT_TRUE(load_bitmap(100, visitor.pointer()));
  EXPECT_TRUE(visitor.calls.empty());  // the fake localizer hands no pixels
  localizer.answer = false;
  EXPECT_FALSE(load_bitmap(103, visitor.pointer()));
  ASSERT_EQ(localizer.requests.size(), 2u);
  EXPECT_EQ(localizer.requests[0].what, fake_localizer::kind::bitmap);
  EXPECT_EQ(localizer.requests[1].reference, 103);

  // The host's images are the host library's own.
  EXPECT_TRUE(load_bitmap(-118, visitor.pointer()));
  EXPECT_EQ(visitor.calls.size(), 1u);
  EXPECT_EQ(localizer.requests.size(), 2u);
}

TEST(TransparentOption, ClearKeepsEveryPixelAsLoaded) {
  const auto file = test::read_bmp24(test::basic_resource("bitmaps/select_all.bmp"));
  ASSERT_TRUE(file);
  const bitmap image(-118);
  ASSERT_FALSE(image.empty());
  EXPECT_FALSE(image.transparent());
  EXPECT_FALSE(image.masked());
  EXPECT_EQ(image.width(), 16);
  EXPECT_EQ(image.height(), 16);
  EXPECT_EQ(image.byte_size(), 16u * 16u * 4u);
  for (std::size_t i = 0; i < 16 * 16; ++i) {
    const auto& want = file->pixels[i];
    EXPECT_EQ(image.pixels()[i * 4], want[0]);
    EXPECT_EQ(image.pixels()[i * 4 + 1], want[1]);
    EXPECT_EQ(image.pixels()[i * 4 + 2], want[2]);
    // A 24-bit image has no alpha of its own: GetDIBits leaves the fourth byte 0.
    EXPECT_EQ(image.pixels()[i * 4 + 3], 0);
  }
}

TEST(TransparentOption, SetMakesTheKeyColourTransparent) {
  const auto file = test::read_bmp24(test::basic_resource("bitmaps/select_all.bmp"));
  ASSERT_TRUE(file);
  bitmap image;
  ASSERT_TRUE(image.load(-118, true));
  EXPECT_TRUE(image.transparent());
  EXPECT_TRUE(image.masked());
  // The key is the first stored pixel, the bottom-left one; it recurs across the background.
  const test::bgr key = file->at(0, 0);
  std::size_t keyed = 0;
  for (std::size_t i = 0; i < 16 * 16; ++i) {
    SCOPED_TRACE(i);
    const auto pixel = image.pixels().subspan(i * 4, 4);
    if (file->pixels[i] == key) {
      ++keyed;
      EXPECT_EQ(pixel[0] | pixel[1] | pixel[2] | pixel[3], 0);
    } else {
      EXPECT_EQ(pixel[0], file->pixels[i][0]);
      EXPECT_EQ(pixel[1], file->pixels[i][1]);
      EXPECT_EQ(pixel[2], file->pixels[i][2]);
      EXPECT_EQ(pixel[3], 255);
    }
  }
  EXPECT_GT(keyed, 1u);
  EXPECT_LT(keyed, 16u * 16u);

  // Handed over with the alpha channel.
  bytes_recorder visitor;
  ASSERT_TRUE(image.visit(visitor.pointer(), false));
  ASSERT_EQ(visitor.calls.size(), 1u);
  EXPECT_EQ(visitor.calls[0].channels, 4);
  EXPECT_EQ(visitor.calls[0].at(15, 0, 3), 0);  // bottom-left: the key
}

TEST(TransparentOption, ReloadingStartsAfresh) {
  bitmap image;
  ASSERT_TRUE(image.load(-119, true));
  ASSERT_TRUE(image.load(-119, false));
  EXPECT_FALSE(image.masked());
  EXPECT_EQ(image.pixels()[3], 0);
  EXPECT_FALSE(image.load(-100, true));
  EXPECT_TRUE(image.empty());
  bytes_recorder visitor;
  EXPECT_FALSE(image.visit(visitor.pointer(), false));
  EXPECT_TRUE(visitor.calls.empty());
}

}  // namespace
}  // namespace tx::resource
