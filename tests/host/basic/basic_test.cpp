// txk_basic's small services: the string adapter and help. (The language offset shows in the
// end-to-end cases in English and in a language without strings, the check modes in the one
// that ticks with the tools.)
#include "tx_host/basic.h"

#include <gtest/gtest.h>

#include <string>

namespace {

void assign_to_string(void* target, const char16_t* text, size_t length) {
  static_cast<std::u16string*>(target)->assign(text, length);
}

TEST(StringAdapter, AssignsThroughTheCallersFunction) {
  std::u16string caption = u"old";
  tx_string_adp* const adapter = tx_string_adp_create(&caption, &assign_to_string);
  ASSERT_NE(adapter, nullptr);
  tx_host_string_adp_assign(adapter, u"Слой 1 and more", 6);
  EXPECT_EQ(caption, u"Слой 1");
  tx_host_string_adp_assign(adapter, nullptr, 5);
  EXPECT_EQ(caption, u"");
  tx_string_adp_destroy(adapter);

  tx_string_adp* const silent = tx_string_adp_create(&caption, nullptr);
  tx_host_string_adp_assign(silent, u"ignored", 7);
  tx_host_string_adp_assign(nullptr, u"ignored", 7);
  EXPECT_EQ(caption, u"");
  tx_string_adp_destroy(silent);
  tx_string_adp_destroy(nullptr);
}

TEST(Help, PositiveKeysAreTopicsAndShowingIsRecorded) {
  struct row {
    std::int32_t key;
    std::int32_t topic;
  };
  for (const row r : {row{1, 1}, row{4321, 4321}, row{0, 0}, row{-5, 0}}) {
    EXPECT_EQ(tx_help_mngr_find_help_id(r.key), r.topic) << r.key;
  }
  EXPECT_EQ(tx_host_last_help_id(), 0);
  tx_help_mngr_show_help(1, 4321);
  EXPECT_EQ(tx_host_last_help_id(), 4321);
  EXPECT_EQ(tx_host_last_help_mode(), 1);
}

}  // namespace
