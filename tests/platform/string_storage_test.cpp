// How strings and raw data are stored and read back: counted NULs, copies, text data bytes and
// their conversion from a code page.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/platform.h"
#include "tx/host/txk_basic.h"

namespace tx::platform {
namespace {

module basic() { return find_module(TX_BASIC_MODULE_NAME); }

TEST(StringStorage, TerminatedStringsCountTheirNul) {
  const std::u16string_view english = stored_string(own_module(), 50177);
  ASSERT_EQ(english.size(), 11u);
  EXPECT_EQ(english, std::u16string_view(u"lover case\0", 11));
}

TEST(StringStorage, UnterminatedStringsAreCountedWithoutNul) {
  const std::u16string_view stored = stored_string(basic(), 104);
  ASSERT_EQ(stored.size(), 9u);
  EXPECT_EQ(stored, u"Подробнее");
}

TEST(StringStorage, MissingOrOutOfRangeIdsAreEmpty) {
  for (const std::uint32_t id : {0u, 11u, 49999u, 65535u, 65536u + 10u, 0xFFFFFFFFu}) {
    SCOPED_TRACE(id);
    EXPECT_TRUE(stored_string(own_module(), id).empty());
  }
}

TEST(StringStorage, CopyTerminatesAndTruncatesLikeLoadString) {
  struct copy_row {
    std::size_t buffer_size;
    std::size_t copied;
    std::u16string expected;  // the buffer afterwards, up to its first NUL
  };
  const copy_row rows[] = {
      {16, 9, u"Подробнее"},
      {10, 9, u"Подробнее"},
      {5, 4, u"Подр"},
      {2, 1, u"П"},
      {1, 0, std::u16string(16, u'#')},  // no room for a unit and the NUL: untouched
  };
  for (const copy_row& row : rows) {
    SCOPED_TRACE(row.buffer_size);
    std::array<char16_t, 17> buffer;
    buffer.fill(u'#');
    buffer.back() = u'\0';
    EXPECT_EQ(copy_string(basic(), 104, std::span(buffer.data(), row.buffer_size)), row.copied);
    EXPECT_EQ(std::u16string(buffer.data()), row.expected);
  }
  std::array<char16_t, 4> untouched{u'#', u'#', u'#', u'\0'};
  EXPECT_EQ(copy_string(basic(), 9999, untouched), 0u);
  EXPECT_EQ(std::u16string(untouched.data()), u"###");
}

struct conversion_row {
  const char* name;
  std::string bytes;
  std::uint32_t code_page;
  std::optional<std::u16string> expected;
};

const conversion_row conversion_rows[] = {
    {"windows-1251", "\xC5\xE6 \xA8\xB8", 1251, u"Еж Ёё"},
    {"koi8-r", "\xE5\xD6 \xB3\xA3", 20866, u"Еж Ёё"},
    {"utf-8", "\xD0\x95\xD0\xB6 \xE2\x84\x96", 65001, u"Еж №"},
    {"windows-1252", "caf\xE9 \x80", 1252, u"café €"},
    {"cp866", "\x85\xA6", 866, u"Еж"},
    {"empty", "", 1251, u""},
    {"unknown code page", "abc", 12345, std::nullopt},
};

TEST(TextConversion, CodePageTable) {
  for (const conversion_row& row : conversion_rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(to_utf16(std::as_bytes(std::span(row.bytes.data(), row.bytes.size())), row.code_page),
              row.expected);
  }
}

}  // namespace
}  // namespace tx::platform
