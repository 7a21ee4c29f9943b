// How a string reference is resolved: the plug-in's own strings, txk_basic's through references
// of zero or less, the host's localizer for the plug-in's own, and what is reported when nothing
// is found.
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
using test::language_guard;
using test::localizer_guard;
using test::russian;
using string_recorder = test::string_sink;

struct reference_row {
  const char* name;
  std::int32_t offset;
  std::int32_t reference;
  std::optional<std::u16string> expected;  // nothing: not found
};

const reference_row reference_rows[] = {
    {"own string", russian, 101, u"Повторить"},
    {"host string of the same number", russian, -101, u"Применить"},
    {"host string in english", english, -101, u"Apply"},
    {"host button captions", russian, -99, u"ОК"},
    {"host help caption", english, -103, u"Help"},
    {"host string stored unterminated", russian, -104, u"Подробнее"},
    {"unterminated, in english", english, -104, u"Details"},
    {"host has no such string", russian, -10, std::nullopt},
    {"own id past the table", russian, 239, std::nullopt},
    {"zero names host string 0", russian, 0, std::nullopt},
    {"id past the resource range", russian, 70000, std::nullopt},
    {"negative past the resource range", russian, -70000, std::nullopt},
    {"most negative reference", russian, INT32_MIN, std::nullopt},
    {"largest reference", english, INT32_MAX, std::nullopt},
};

TEST(StringLoading, ReferenceTable) {
  for (const reference_row& row : reference_rows) {
    SCOPED_TRACE(row.name);
    const language_guard guard(row.offset);
    string_recorder visitor;
    EXPECT_EQ(load_string(row.reference, visitor.pointer()), row.expected.has_value());
    if (row.expected) {
      ASSERT_EQ(visitor.texts.size(), 1u);
      EXPECT_EQ(visitor.texts.front(), *row.expected);
    } else {
      EXPECT_TRUE(visitor.texts.empty());
    }
    EXPECT_EQ(string(row.reference), row.expected);
  }
}

TEST(StringLoading, NullVisitorStillReportsFound) {
  EXPECT_TRUE(load_string(10, {}));
  EXPECT_TRUE(load_string(-100, {}));
  string_recorder half;
  EXPECT_TRUE(load_string(10, {nullptr, &half}));
  EXPECT_FALSE(load_string(11, {}));
}

TEST(StringLoading, LocalizerAloneAnswersOwnReferences) {
  fake_localizer localizer;
  const localizer_guard guard(localizer.pointer());
  string_recorder visitor;
  // 101 is a string the plug-in holds, 239 one it does not: the localizer answers both.
  EXPECT_TRUE(load_string(101, visitor.pointer()));
  EXPECT_TRUE(load_string(239, visitor.pointer()));
  EXPECT_EQ(visitor.texts,
            (std::vector<std::u16string>{u"from the localizer", u"from the localizer"}));
  ASSERT_EQ(localizer.requests.size(), 2u);
  EXPECT_EQ(localizer.requests[0].what, fake_localizer::kind::string);
  EXPECT_EQ(localizer.requests[0].reference, 101);
  EXPECT_EQ(localizer.requests[1].reference, 239);

  // Its "not found" is the answer too: the plug-in's own strings are not consulted.
  localizer.answer = false;
  string_recorder unanswered;
  EXPECT_FALSE(load_string(101, unanswered.pointer()));
  EXPECT_TRUE(unanswered.texts.empty());
}

TEST(StringLoading, HostReferencesBypassTheLocalizer) {
  fake_localizer localizer;
  const localizer_guard guard(localizer.pointer());
  string_recorder visitor;
  EXPECT_TRUE(load_string(-101, visitor.pointer()));
  EXPECT_FALSE(load_string(0, visitor.pointer()));
  EXPECT_EQ(visitor.texts, (std::vector<std::u16string>{u"Применить"}));
  EXPECT_TRUE(localizer.requests.empty());
}

TEST(StringLoading, LocalizerWithoutTheSlotAnswersNotFound) {
  static constexpr tx_localizer_interface_1 no_string_slot{
      &test::no_interfaces, &fake_localizer::load_text_data, nullptr, &fake_localizer::load_bitmap};
  fake_localizer localizer;
  const localizer_guard guard({&no_string_slot, &localizer});
  string_recorder visitor;
  EXPECT_FALSE(load_string(10, visitor.pointer()));
  EXPECT_TRUE(visitor.texts.empty());
}

}  // namespace
}  // namespace tx::resource
