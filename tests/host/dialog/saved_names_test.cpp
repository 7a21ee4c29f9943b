// After a utility ran: the names it wrote are saved and listed, the first 200 of them unless
// --all, and a project file that cannot be written is told with nothing printed as saved.
// (What a real dialog's commit saves is what every end-to-end case compares.)
#include "tx_host/txhost/saved_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>

#include "tx/host/txk_basic.h"
#include "tx/host/txk_entity.h"
#include "tx_host/project.h"
#include "tx_host/txhost/listing_limit.h"

namespace tx::host {
namespace {

namespace fs = std::filesystem;

void open_small_project() {
  const fs::path example = fs::path(TX_EXAMPLES_DIR) / "small.json";
  ASSERT_TRUE(tx_host_project_load(example.string().c_str())) << tx_host_project_error();
}

// Renames the layer "Шоссе" `count` times: "Шоссе" → "Шоссе 1" → "Шоссе 2" …
void rename_highway(std::size_t count) {
  tx_entity* const highway = tx_host_project_find(tx_uuid{0xa03});
  for (std::size_t i = 1; i <= count; ++i) {
    const std::string digits = std::to_string(i);
    const std::u16string name = u"Шоссе " + std::u16string(digits.begin(), digits.end());
    tx_entity_set_wcaption(highway, name.c_str());
  }
}

TEST(SavedNames, AreListedUpToTheLimitOrAllOfThemWithAll) {
  struct row {
    std::size_t renames;
    bool all;
    std::size_t listed;     // name lines printed
    std::string last_line;  // what the listing ends with
  };
  const row rows[] = {
      {1, false, 1, "  Шоссе → Шоссе 1"},
      {200, false, 200, "  Шоссе 199 → Шоссе 200"},
      {201, false, 200, "  … and 1 more names (--all lists them all)"},
      {1434, false, 200, "  … and 1,234 more names (--all lists them all)"},
      {1434, true, 1434, "  Шоссе 1433 → Шоссе 1434"},
  };
  const fs::path saved = fs::path(TX_TEST_OUTPUT_DIR) / "saved_names.json";
  for (const row& r : rows) {
    const std::string name = std::to_string(r.renames) + (r.all ? " with --all" : "");
    open_small_project();
    rename_highway(r.renames);
    testing::internal::CaptureStdout();
    const saving_report report{stdout, stderr, listed_lines(r.all), nullptr};
    EXPECT_TRUE(save_written_names(saved.string(), report)) << name;
    const std::string printed = testing::internal::GetCapturedStdout();
    EXPECT_TRUE(printed.starts_with("saved " + saved.string() + ": " + std::to_string(r.renames) +
                                    (r.renames == 1 ? " name\n" : " names\n") +
                                    "  Шоссе → Шоссе 1\n"))
        << name;
    const bool cut = r.listed < r.renames;
    EXPECT_EQ(static_cast<std::size_t>(std::count(printed.begin(), printed.end(), '\n')),
              1 + r.listed + (cut ? 1 : 0))
        << name;
    EXPECT_TRUE(printed.ends_with("\n" + r.last_line + "\n")) << name;
  }
  tx_host_project_clear();
}

TEST(SavedNames, NothingWrittenIsNothingSaved) {
  open_small_project();
  const fs::path untouched = fs::path(TX_TEST_OUTPUT_DIR) / "untouched.json";
  fs::remove(untouched);
  testing::internal::CaptureStdout();
  EXPECT_TRUE(save_written_names(untouched.string(), {stdout, stderr, 10, nullptr}));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_FALSE(fs::exists(untouched));
  tx_host_project_clear();
}

TEST(SavedNames, AFileThatCannotBeWrittenIsTold) {
  open_small_project();
  tx_entity_set_wcaption(tx_host_project_find(tx_uuid{0xa02}), u"Улицы");
  const fs::path nowhere = fs::path(TX_TEST_OUTPUT_DIR) / "no_such_folder" / "x.json";
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_FALSE(save_written_names(nowhere.string(), {stdout, stderr, 10, nullptr}));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  const std::string told = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(told.starts_with("txhost: ")) << told;
  tx_host_project_clear();
}

}  // namespace
}  // namespace tx::host
