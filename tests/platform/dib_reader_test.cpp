// The native decoder of .bmp, .ico and .cur files against damaged and unusual files: whatever
// the bytes, it answers a bitmap that lies inside them or nothing. It is plain C++, so both
// builds run these cases.
#include "platform/posix/dib_reader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "resource_files.h"

namespace tx::platform::posix {
namespace {

using bytes = std::vector<std::uint8_t>;

void put(bytes& file, std::size_t at, std::uint32_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i)
    file.at(at + i) = static_cast<std::uint8_t>(value >> (8 * i));
}

TEST(DibReader, EveryTruncationOfTheShippedFilesIsRefused) {
  struct file_row {
    std::string path;
    std::function<bool(std::span<const std::uint8_t>)> reads;
  };
  const file_row rows[] = {
      {test::plugin_resource("bitmaps/undo.bmp"),
       [](auto file) { return read_bmp_file(file).has_value(); }},
      {test::basic_resource("icons/folder.ico"),
       [](auto file) { return read_icon_file(file, false).has_value(); }},
      {test::basic_resource("icons/arrow.cur"),
       [](auto file) { return read_icon_file(file, true).has_value(); }},
  };
  for (const file_row& row : rows) {
    SCOPED_TRACE(row.path);
    const bytes file = test::read_file(row.path);
    ASSERT_FALSE(file.empty());
    EXPECT_TRUE(row.reads(file));
    for (std::size_t size = 0; size < file.size(); ++size) {
      ASSERT_FALSE(row.reads(std::span(file.data(), size))) << size;
    }
  }
}

TEST(DibReader, DamagedHeadersAreRefused) {
  struct damage_row {
    const char* name;
    bool icon;
    std::size_t at;
    std::uint32_t value;
    std::size_t size;
  };
  // In a .bmp file: the pixels' offset at 10, the info header from 14. In an .ico file: the
  // directory (reserved, type, count), one 16-byte entry from 6 (its image size at 14, its
  // offset at 18), the image's info header from 22.
  const damage_row rows[] = {
      {"not a bitmap", false, 0, 'X', 1},
      {"pixels past the end", false, 10, 0xFFFFFFF0, 4},
      {"header too short", false, 14, 12, 4},
      {"header past the end", false, 14, 0xFFFFFFF0, 4},
      {"no width", false, 18, 0, 4},
      {"too wide", false, 18, 100000, 4},
      {"negative width", false, 18, 0xFFFFFFF0, 4},
      {"no height", false, 22, 0, 4},
      {"most negative height", false, 22, 0x80000000, 4},
      {"16 bits a pixel", false, 28, 16, 2},
      {"compressed", false, 30, 1, 4},
      {"colour table too long", false, 46, 300, 4},
      {"reserved word set", true, 0, 1, 2},
      {"a cursor's type", true, 2, 2, 2},
      {"no entries", true, 4, 0, 2},
      {"entries past the end", true, 4, 400, 2},
      {"image past the end", true, 14, 0xFFFF, 4},
      {"image offset past the end", true, 18, 0xFFFFFFF0, 4},
      {"upside-down image", true, 22 + 8, 0xFFFFFFC0, 4},
      {"image too wide", true, 22 + 4, 5000, 4},
  };
  const bytes bmp = test::read_file(test::plugin_resource("bitmaps/undo.bmp"));
  const bytes ico = test::read_file(test::basic_resource("icons/folder.ico"));
  ASSERT_TRUE(read_bmp_file(bmp));
  ASSERT_TRUE(read_icon_file(ico, false));
  EXPECT_FALSE(read_icon_file(ico, true));  // an icon is not a cursor
  for (const damage_row& row : rows) {
    bytes damaged = row.icon ? ico : bmp;
    put(damaged, row.at, row.value, row.size);
    EXPECT_FALSE(row.icon ? read_icon_file(damaged, false).has_value()
                          : read_bmp_file(damaged).has_value())
        << row.name;
  }
}

TEST(DibReader, TopDownBitmapReadsLikeBottomUp) {
  const bytes original = test::read_file(test::plugin_resource("bitmaps/redo.bmp"));
  const auto bottom_up = read_bmp_file(original);
  ASSERT_TRUE(bottom_up);
  bytes flipped = original;
  const std::size_t stride = 16 * 3;
  for (std::size_t row = 0; row < 16; ++row) {
    std::copy_n(original.begin() + static_cast<std::ptrdiff_t>(54 + row * stride), stride,
                flipped.begin() + static_cast<std::ptrdiff_t>(54 + (15 - row) * stride));
  }
  put(flipped, 22, static_cast<std::uint32_t>(-16), 4);
  const auto top_down = read_bmp_file(flipped);
  ASSERT_TRUE(top_down);
  EXPECT_TRUE(top_down->top_down);
  EXPECT_EQ(top_down->rows, 16);
  for (std::int32_t row = 0; row < 16; ++row) {
    for (std::int32_t x = 0; x < 16; ++x) {
      ASSERT_EQ(top_down->bgrx(x, row), bottom_up->bgrx(x, row)) << x << "," << row;
    }
  }
}

TEST(DibReader, PalettedPixelsReadThroughTheirTable) {
  // A 4 × 2 bitmap, 4 bits a pixel, three colours; an index past the table reads as black.
  bytes file(14 + 40 + 3 * 4 + 2 * 4, 0);
  file[0] = 'B';
  file[1] = 'M';
  put(file, 10, 14 + 40 + 12, 4);
  put(file, 14, 40, 4);
  put(file, 18, 4, 4);
  put(file, 22, 2, 4);
  put(file, 26, 1, 2);
  put(file, 28, 4, 2);
  put(file, 46, 3, 4);
  const std::uint8_t table[] = {10, 20, 30, 0, 40, 50, 60, 0, 70, 80, 90, 0};
  std::copy(std::begin(table), std::end(table), file.begin() + 54);
  const std::uint8_t pixels[] = {0x01, 0x2F, 0, 0, 0x10, 0x00, 0, 0};  // bottom row first
  std::copy(std::begin(pixels), std::end(pixels), file.begin() + 66);
  const auto image = read_bmp_file(file);
  ASSERT_TRUE(image);
  using pixel = std::array<std::uint8_t, 4>;
  EXPECT_EQ(image->bgrx(0, 0), (pixel{10, 20, 30, 0}));
  EXPECT_EQ(image->bgrx(1, 0), (pixel{40, 50, 60, 0}));
  EXPECT_EQ(image->bgrx(2, 0), (pixel{70, 80, 90, 0}));
  EXPECT_EQ(image->bgrx(3, 0), (pixel{0, 0, 0, 0}));
  EXPECT_EQ(image->bgrx(0, 1), (pixel{40, 50, 60, 0}));
  EXPECT_EQ(image->bgrx(3, 1), (pixel{10, 20, 30, 0}));
}

}  // namespace
}  // namespace tx::platform::posix
