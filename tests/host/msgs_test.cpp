#include "tx_host/msgs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tx/host/txk_msgs.h"

namespace {

std::string without_carriage_returns(std::string text) {
  std::erase(text, '\r');
  return text;
}

std::vector<double> reports() {
  std::vector<double> fractions;
  for (size_t i = 0; i < tx_host_msgs_progress_report_count(); ++i) {
    fractions.push_back(tx_host_msgs_progress_report(i));
  }
  return fractions;
}

TEST(MsgsWarnings, RecordedInOrderAndPrintedAsUtf8WithPrefix) {
  tx_host_msgs_clear();
  testing::internal::CaptureStderr();
  tx_show_wwarning(u"Не заданы новые имена");
  tx_show_wwarning(u"second");
  const std::string printed = without_carriage_returns(testing::internal::GetCapturedStderr());

  EXPECT_EQ(printed, "warning: Не заданы новые имена\nwarning: second\n");
  ASSERT_EQ(tx_host_msgs_warning_count(), 2u);
  EXPECT_EQ(std::u16string(tx_host_msgs_warning(0)), u"Не заданы новые имена");
  EXPECT_EQ(std::u16string(tx_host_msgs_warning(1)), u"second");
  EXPECT_EQ(tx_host_msgs_warning(2), nullptr);
}

TEST(MsgsWarnings, EarlierTextStaysValidAsMoreArrive) {
  tx_host_msgs_clear();
  testing::internal::CaptureStderr();
  tx_show_wwarning(u"a");
  const char16_t* first = tx_host_msgs_warning(0);
  for (int i = 0; i < 100; ++i) tx_show_wwarning(u"more");
  testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::u16string(first), u"a");
}

TEST(MsgsWarnings, NullTextIsIgnoredAndClearForgetsAll) {
  tx_host_msgs_clear();
  testing::internal::CaptureStderr();
  tx_show_wwarning(nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(tx_host_msgs_warning_count(), 0u);

  testing::internal::CaptureStderr();
  tx_show_wwarning(u"x");
  testing::internal::GetCapturedStderr();
  tx_host_msgs_clear();
  EXPECT_EQ(tx_host_msgs_warning_count(), 0u);
  EXPECT_EQ(tx_host_msgs_warning(0), nullptr);
}

TEST(MsgsProgress, RecordsEveryFractionOfLiveIndicatorsInOrder) {
  tx_host_msgs_clear();
  tx_progress* first = tx_progress_create(nullptr);
  tx_progress* second = tx_progress_create(nullptr);
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);

  tx_progress_report(first, 0.0);
  tx_progress_report(second, 0.25);
  tx_progress_report(first, 1.0);
  EXPECT_EQ(reports(), (std::vector<double>{0.0, 0.25, 1.0}));
  EXPECT_EQ(tx_host_msgs_progress_report(3), -1.0);
  EXPECT_EQ(tx_host_msgs_progress_created(), 2u);
  EXPECT_EQ(tx_host_msgs_progress_destroyed(), 0u);

  tx_progress_destroy(first);
  tx_progress_destroy(second);
  EXPECT_EQ(tx_host_msgs_progress_destroyed(), 2u);
}

TEST(MsgsProgress, DeadUnknownAndNullIndicatorsAreIgnored) {
  tx_host_msgs_clear();
  tx_progress* progress = tx_progress_create(nullptr);
  tx_progress_destroy(progress);
  tx_progress_destroy(progress);  // a second destroy of the same indicator counts once
  tx_progress_destroy(nullptr);
  tx_progress_report(progress, 0.5);
  tx_progress_report(nullptr, 0.5);

  EXPECT_EQ(tx_host_msgs_progress_created(), 1u);
  EXPECT_EQ(tx_host_msgs_progress_destroyed(), 1u);
  EXPECT_EQ(tx_host_msgs_progress_report_count(), 0u);
}

TEST(MsgsProgress, ClearKeepsLiveIndicatorsUsable) {
  tx_host_msgs_clear();
  tx_progress* progress = tx_progress_create(nullptr);
  tx_progress_report(progress, 0.1);
  tx_host_msgs_clear();
  EXPECT_EQ(tx_host_msgs_progress_created(), 0u);
  EXPECT_EQ(tx_host_msgs_progress_report_count(), 0u);

  tx_progress_report(progress, 0.9);
  tx_progress_destroy(progress);
  EXPECT_EQ(reports(), std::vector<double>{0.9});
  EXPECT_EQ(tx_host_msgs_progress_destroyed(), 1u);
}

}  // namespace
