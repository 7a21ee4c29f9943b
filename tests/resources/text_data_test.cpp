// Text data (resource type 260) in a multi-byte code page, from txk_basic: the language's copy,
// the Russian fallback and the code page the caller names.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "guards.h"
#include "host_services.h"
#include "resources/loader.h"

namespace tx::resource {
namespace {

using test::english;
using test::fake_localizer;
using test::language_guard;
using test::localizer_guard;
using test::russian;
using string_recorder = test::string_sink;

const std::u16string notice_ru = u"Общие ресурсы Тарвекс. Ёж, ёлка!";
const std::u16string notice_en = u"Tarvex shared resources.";

struct text_row {
  const char* name;
  std::int32_t offset;
  std::int32_t reference;
  std::uint32_t code_page;
  std::optional<std::u16string> expected;
};

const text_row text_rows[] = {
    {"windows-1251 in russian", russian, -1, 1251, notice_ru},
    {"english copy", english, -1, 1251, notice_en},
    {"no copy in this language", 12345, -1, 1251, notice_ru},
    {"koi8-r", russian, -2, 20866, notice_ru},
    {"koi8-r has no english copy", english, -2, 20866, notice_ru},
    // The KOI8-R bytes read as Windows-1251.
    {"read in another code page", russian, -2, 1251, u"пВЭЙЕ ТЕУХТУЩ фБТЧЕЛУ. іЦ, ЈМЛБ!"},
    {"no such text", russian, -3, 1251, std::nullopt},
    {"the plug-in has none", russian, 1, 1251, std::nullopt},
    {"unknown code page", russian, -1, 12345, std::nullopt},
};

TEST(TextData, Table) {
  for (const text_row& row : text_rows) {
    SCOPED_TRACE(row.name);
    const language_guard guard(row.offset);
    string_recorder visitor;
    EXPECT_EQ(load_text_data(row.reference, visitor.pointer(), row.code_page),
              row.expected.has_value());
    if (row.expected) {
      ASSERT_EQ(visitor.texts.size(), 1u);
      EXPECT_EQ(visitor.texts.front(), *row.expected);
    } else {
      EXPECT_TRUE(visitor.texts.empty());
    }
  }
}

TEST(TextData, LocalizerAnswersOwnReferencesWithTheCodePage) {
  fake_localizer localizer;
  const localizer_guard guard(localizer.pointer());
  string_recorder visitor;
  EXPECT_TRUE(load_text_data(7, visitor.pointer(), 866));
  EXPECT_TRUE(load_text_data(-1, visitor.pointer(), 1251));
  EXPECT_EQ(visitor.texts, (std::vector<std::u16string>{u"from the localizer", notice_ru}));
  ASSERT_EQ(localizer.requests.size(), 1u);
  EXPECT_EQ(localizer.requests[0].what, fake_localizer::kind::text_data);
  EXPECT_EQ(localizer.requests[0].reference, 7);
  EXPECT_EQ(localizer.requests[0].code_page, 866u);
}

}  // namespace
}  // namespace tx::resource
