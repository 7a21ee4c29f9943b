// How a string or text data reference is resolved: the plug-in's own, txk_basic's through
// references of zero or less, in the host's language or else in Russian, the host's localizer for
// the plug-in's own, and what is reported when nothing is found. (The strings every printed
// dialog shows, the host's button captions in either language among them, are the end-to-end
// cases'.)
#include <gtest/gtest.h>

#include <climits>
#include <optional>
#include <string>

#include "guards.h"
#include "host_services.h"
#include "resources/loader.h"

namespace tx::resource {
namespace {

using test::english;
using test::fake_localizer;
using test::russian;

const std::u16string notice_ru = u"Общие ресурсы Тарвекс. Ёж, ёлка!";

struct reference_row {
  const char* name;
  std::int32_t offset;
  std::int32_t reference;
  std::uint32_t code_page;                 // text data in this code page; 0: a string
  std::optional<std::u16string> expected;  // nothing: not found
};

const reference_row reference_rows[] = {
    {"own string in a language without strings", 12345, 177, 0, u"нижний регистр"},
    {"host string of the same number", russian, -101, 0, u"Применить"},
    {"host string stored unterminated", russian, -104, 0, u"Подробнее"},
    {"unterminated, in english", english, -104, 0, u"Details"},
    {"host has no such string", russian, -10, 0, std::nullopt},
    {"own id past the table", russian, 239, 0, std::nullopt},
    {"zero names host string 0", russian, 0, 0, std::nullopt},
    {"id past the resource range", russian, 70000, 0, std::nullopt},
    {"most negative reference", russian, INT32_MIN, 0, std::nullopt},
    {"largest reference", english, INT32_MAX, 0, std::nullopt},
    {"text in windows-1251", russian, -1, 1251, notice_ru},
    {"text, english copy", english, -1, 1251, u"Tarvex shared resources."},
    {"text, no copy in this language", 12345, -1, 1251, notice_ru},
    {"text in koi8-r", russian, -2, 20866, notice_ru},
    // The KOI8-R bytes read as Windows-1251.
    {"text read in another code page", russian, -2, 1251, u"пВЭЙЕ ТЕУХТУЩ фБТЧЕЛУ. іЦ, ЈМЛБ!"},
    {"no such text", russian, -3, 1251, std::nullopt},
    {"the plug-in has no text", russian, 1, 1251, std::nullopt},
    {"text in an unknown code page", russian, -1, 12345, std::nullopt},
};

TEST(StringLoading, ReferenceTable) {
  for (const reference_row& row : reference_rows) {
    SCOPED_TRACE(row.name);
    const test::language_guard guard(row.offset);
    test::string_sink visitor;
    EXPECT_EQ(row.code_page == 0 ? load_string(row.reference, visitor.pointer())
                                 : load_text_data(row.reference, visitor.pointer(), row.code_page),
              row.expected.has_value());
    EXPECT_EQ(visitor.texts,
              row.expected ? std::vector{*row.expected} : std::vector<std::u16string>{});
    if (row.code_page == 0) {
      EXPECT_EQ(string(row.reference), row.expected);
    }
  }
}

TEST(StringLoading, NullVisitorStillReportsFound) {
  EXPECT_TRUE(load_string(10, {}));
  EXPECT_TRUE(load_string(-100, {}));
  test::string_sink half;
  EXPECT_TRUE(load_string(10, {nullptr, &half}));
  EXPECT_FALSE(load_string(11, {}));
}

// Only the plug-in's own references go to the host's localizer, as asked (text data with its
// code page), and its answer is final, found or not. (A host reference sent to the localizer
// loses the host's captions in every end-to-end case.)
TEST(Localizer, AloneAnswersTheOwnReferences) {
  using kind = fake_localizer::kind;
  struct row {
    const char* name;
    kind what;
    std::int32_t reference;
    std::uint32_t code_page;  // of text data
    bool answers;             // whether the localizer finds it
    bool found;
    std::vector<std::u16string> texts;
  };
  const std::u16string localized = u"from the localizer";
  const row rows[] = {
      {"own string", kind::string, 101, 0, true, true, {localized}},
      {"own string the localizer lacks", kind::string, 101, 0, false, false, {}},
      {"own text data", kind::text_data, 7, 866, true, true, {localized}},
      {"own bitmap (the fake hands no pixels)", kind::bitmap, 100, 0, true, true, {}},
      {"own bitmap the localizer lacks", kind::bitmap, 103, 0, false, false, {}},
      {"host string 0", kind::string, 0, 0, true, false, {}},
  };
  for (const row& r : rows) {
    SCOPED_TRACE(r.name);
    fake_localizer localizer;
    localizer.answer = r.answers;
    const test::localizer_guard guard(localizer.pointer());
    test::string_sink texts;
    test::bytes_sink pixels;
    const bool found = r.what == kind::bitmap ? load_bitmap(r.reference, pixels.pointer())
                       : r.what == kind::string
                           ? load_string(r.reference, texts.pointer())
                           : load_text_data(r.reference, texts.pointer(), r.code_page);
    EXPECT_EQ(found, r.found);
    EXPECT_EQ(texts.texts, r.texts);
    EXPECT_TRUE(pixels.calls.empty());  // the fake hands none; the plug-in's own are not read
    if (r.reference > 0) {
      ASSERT_EQ(localizer.requests.size(), 1u);
      EXPECT_EQ(localizer.requests[0].what, r.what);
      EXPECT_EQ(localizer.requests[0].reference, r.reference);
      EXPECT_EQ(localizer.requests[0].code_page, r.code_page);
    } else {
      EXPECT_TRUE(localizer.requests.empty());
    }
  }
}

TEST(Localizer, WithoutTheStringSlotAnswersNotFound) {
  static constexpr tx_localizer_interface_1 no_string_slot{
      &test::no_interfaces, &fake_localizer::load_text_data, nullptr, &fake_localizer::load_bitmap};
  fake_localizer localizer;
  const test::localizer_guard guard({&no_string_slot, &localizer});
  test::string_sink visitor;
  EXPECT_FALSE(load_string(10, visitor.pointer()));
  EXPECT_TRUE(visitor.texts.empty());
}

}  // namespace
}  // namespace tx::resource
