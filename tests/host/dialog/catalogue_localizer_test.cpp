// The host's catalogue localizer: strings in the host's language or else in Russian, and
// pictures handed over top row first, 24-bit ones only.
#include "tx_host/services/catalogue_localizer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tx_host/dialog/picture_reader.h"
#include "tx_host/services/string_collector.h"
#include "tx_host/services/utf.h"

namespace tx::test {
namespace {

// A .bmp file of 2 × 3 pixels (2 rows, stored bottom-up), 24 bits a pixel, rows padded to 12.
std::vector<std::uint8_t> bmp_file(std::uint16_t bits = 24) {
  std::vector<std::uint8_t> file(14 + 40 + 2 * 12, 0);
  const auto put32 = [&file](std::size_t at, std::uint32_t v) {
    for (std::size_t i = 0; i < 4; ++i) file[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
  };
  file[0] = 'B';
  file[1] = 'M';
  put32(2, static_cast<std::uint32_t>(file.size()));
  put32(10, 54);
  put32(14, 40);
  put32(18, 3);  // width
  put32(22, 2);  // height
  file[26] = 1;
  file[28] = static_cast<std::uint8_t>(bits);
  return file;
}

TEST(CatalogueLocalizer, AnswersInTheLanguageOrInRussianAndHandsPicturesTopRowFirst) {
  const host::catalogue_string strings[] = {
      {10, u"Переименование"}, {50010, u"Rename"}, {11, u"только по-русски"}};
  const std::vector<std::uint8_t> good = bmp_file();
  const std::vector<std::uint8_t> paletted = bmp_file(8);
  const host::catalogue_bitmap bitmaps[] = {{100, good}, {101, paletted}};
  host::catalogue_localizer english(strings, bitmaps, 50000);
  host::catalogue_localizer unknown(strings, bitmaps, 30000);

  const auto text = [](host::catalogue_localizer& l, std::int32_t id) -> std::string {
    host::string_collector collector;
    if (!l.load_string(id, collector.pair())) return "(none)";
    return host::to_utf8(collector.text());
  };
  EXPECT_EQ(text(english, 10), "Rename");
  EXPECT_EQ(text(english, 11), "только по-русски");
  EXPECT_EQ(text(unknown, 10), "Переименование");
  EXPECT_EQ(text(english, 12), "(none)");
  EXPECT_EQ(text(english, -101), "(none)");  // the host's basic library's, not the catalogue's
  EXPECT_TRUE(english.load_string(10, tx_custom_pointer{}));

  const std::optional<host::dialog::picture_size> size = host::dialog::collect_picture(
      [&](tx_custom_pointer v) { return english.load_bitmap(100, v); });
  ASSERT_TRUE(size.has_value());
  EXPECT_EQ(size->rows, 2);
  EXPECT_EQ(size->columns, 3);
  EXPECT_EQ(size->channels, 3);
  EXPECT_FALSE(english.load_bitmap(101, tx_custom_pointer{}));  // not 24 bits a pixel
  EXPECT_FALSE(english.load_bitmap(102, tx_custom_pointer{}));
  EXPECT_TRUE(english.load_bitmap(100, tx_custom_pointer{}));
}

}  // namespace
}  // namespace tx::test
