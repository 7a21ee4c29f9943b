#include "tx_host/msgs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tx/host/txk_msgs.h"

namespace {

// What `show` printed to stderr, without carriage returns.
template <class F>
std::string printed_by(F show) {
  testing::internal::CaptureStderr();
  show();
  std::string text = testing::internal::GetCapturedStderr();
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
  const std::string printed = printed_by([] {
    tx_show_wwarning(u"Не заданы новые имена");
    tx_show_wwarning(nullptr);  // ignored
    tx_show_wwarning(u"second");
  });
  EXPECT_EQ(printed, "warning: Не заданы новые имена\nwarning: second\n");
  ASSERT_EQ(tx_host_msgs_warning_count(), 2u);
  const char16_t* first = tx_host_msgs_warning(0);
  EXPECT_EQ(tx_host_msgs_warning(2), nullptr);
  // Earlier text stays valid as more arrives; clearing forgets all.
  printed_by([] {
    for (int i = 0; i < 100; ++i) tx_show_wwarning(u"more");
  });
  EXPECT_EQ(std::u16string(first), u"Не заданы новые имена");
  tx_host_msgs_clear();
  EXPECT_EQ(tx_host_msgs_warning_count(), 0u);
  EXPECT_EQ(tx_host_msgs_warning(0), nullptr);
}

TEST(MsgsProgress, RecordsEveryFractionOfLiveIndicatorsInOrder) {
  tx_host_msgs_clear();
  tx_progress* first = tx_progress_create(nullptr);
  tx_progress* second = tx_progress_create(nullptr);
  ASSERT_NE(first, second);
  tx_progress_report(first, 0.0);
  tx_progress_report(second, 0.25);
  tx_progress_report(first, 1.0);
  EXPECT_EQ(reports(), (std::vector<double>{0.0, 0.25, 1.0}));
  tx_progress_destroy(first);
  tx_progress_destroy(first);  // a second destroy of the same indicator counts once
  tx_progress_destroy(nullptr);
  tx_progress_report(first, 0.5);  // dead and null indicators are ignored
  tx_progress_report(nullptr, 0.5);
  EXPECT_EQ(tx_host_msgs_progress_destroyed(), 1u);
  EXPECT_EQ(tx_host_msgs_progress_report_count(), 3u);

  // Clearing keeps the live indicator usable.
  tx_host_msgs_clear();
  tx_progress_report(second, 0.9);
  EXPECT_EQ(reports(), std::vector<double>{0.9});
}

}  // namespace
