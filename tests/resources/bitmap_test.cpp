// Bitmaps handed to the host: what the visitor is given (steps, channels, the order of rows),
// that the pixels are the files', and the transparent option.
#include "resources/bitmap.h"

#include <gtest/gtest.h>

#include <string>

#include "guards.h"
#include "host_doubles.h"
#include "resource_files.h"
#include "resources/loader.h"

namespace tx::resource {
namespace {

using test::bytes_sink;

// A host image is asked for in the host's language first (id + offset), then in Russian (the
// id); the plug-in's own images are the same in every language.
TEST(BitmapLoading, EveryImageInEitherRowOrderIsTheFilesInTheHostsLanguage) {
  struct image_case {
    std::int32_t reference;
    std::int32_t language;
    std::string path;
  };
  const image_case images[] = {
      {100, 0, test::plugin_resource("bitmaps/undo.bmp")},
      {101, 0, test::plugin_resource("bitmaps/redo.bmp")},
      {103, 50000, test::plugin_resource("bitmaps/expand.bmp")},
      {104, 0, test::plugin_resource("bitmaps/collapse.bmp")},
      {-118, 0, test::basic_resource("bitmaps/select_all.bmp")},
      {-118, 50000, test::basic_resource("bitmaps/select_all_en.bmp")},
      {-118, 30000, test::basic_resource("bitmaps/select_all.bmp")},
      {-119, 50000, test::basic_resource("bitmaps/clear_selection.bmp")},
      {-120, 0, test::basic_resource("bitmaps/invert_selection.bmp")},
  };
  for (const auto& [reference, language, path] : images) {
    test::language_guard in(language);
    const auto file = test::read_bmp24(path);
    ASSERT_TRUE(file) << path;
    for (const bool stored_order : {false, true}) {
      SCOPED_TRACE(path + " in " + std::to_string(language) +
                   (stored_order ? ", stored order" : ", top row first"));
      bytes_sink visitor;
      EXPECT_TRUE(load_bitmap(reference, visitor.pointer(), stored_order));
      ASSERT_EQ(visitor.calls.size(), 1u);
      const test::bytes_call& call = visitor.calls[0];
      EXPECT_EQ(call.shape(), (std::vector<std::int32_t>{16, 16, 3}));
      EXPECT_EQ(call.row_step, stored_order ? 16 * 4 : -16 * 4);
      EXPECT_EQ(call.column_step, 4);
      EXPECT_EQ(call.channel_step, 1);
      for (std::int32_t r = 0; r < 16; ++r) {
        // The file stores its bottom row first.
        const std::int32_t file_row = stored_order ? r : 15 - r;
        for (std::int32_t c = 0; c < 16; ++c) {
          for (std::int32_t k = 0; k < 3; ++k) {
            ASSERT_EQ(call.at(r, c, k), file->at(c, file_row)[k]) << r << "," << c << "," << k;
          }
        }
      }
    }
  }
}

TEST(BitmapLoading, MissingBitmapsCallNothingAndANullVisitorStillFindsThem) {
  // 102 is a string without an image; txk_basic has no bitmap 100, and its 1 is an icon.
  for (const std::int32_t reference : {102, -100, -1, 0, 1, 70000, -70000}) {
    bytes_sink visitor;
    EXPECT_FALSE(load_bitmap(reference, visitor.pointer())) << reference;
    EXPECT_TRUE(visitor.calls.empty()) << reference;
  }
  EXPECT_TRUE(load_bitmap(100, {}));
  EXPECT_TRUE(load_bitmap(-119, {}, true));
}

TEST(TransparentOption, ClearKeepsEveryPixelSetMakesTheKeyColourTransparent) {
  const auto file = test::read_bmp24(test::basic_resource("bitmaps/select_all.bmp"));
  ASSERT_TRUE(file);
  // The key is the first stored pixel, the bottom-left one; it recurs across the background.
  const test::bgr key = file->at(0, 0);
  std::size_t keyed = 0;
  for (const bool transparent : {false, true}) {
    bitmap image;
    ASSERT_TRUE(image.load(-118, transparent));
    ASSERT_EQ(image.byte_size(), 16u * 16u * 4u);
    EXPECT_EQ(image.masked(), transparent);
    for (std::size_t i = 0; i < 16 * 16; ++i) {
      const auto pixel = image.pixels().subspan(i * 4, 4);
      const bool clear = transparent && file->pixels[i] == key;
      keyed += clear ? 1 : 0;
      for (std::size_t k = 0; k < 3; ++k) {
        ASSERT_EQ(pixel[k], clear ? 0 : file->pixels[i][k]) << i;
      }
      // A 24-bit image has no alpha of its own: GetDIBits leaves the fourth byte 0.
      ASSERT_EQ(pixel[3], transparent && !clear ? 255 : 0) << i;
    }
  }
  EXPECT_GT(keyed, 1u);
  EXPECT_LT(keyed, 16u * 16u);

  // Handed over with the alpha channel.
  bitmap image;
  ASSERT_TRUE(image.load(-118, true));
  bytes_sink visitor;
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
  bytes_sink visitor;
  EXPECT_FALSE(image.visit(visitor.pointer(), false));
  EXPECT_TRUE(visitor.calls.empty());
}

}  // namespace
}  // namespace tx::resource
