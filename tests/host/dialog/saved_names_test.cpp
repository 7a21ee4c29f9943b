// After a utility ran, a project file that cannot be written is told and nothing is printed as
// saved. (Saving the names and listing them, or writing nothing, is what every end-to-end case
// compares.)
#include "saved_names.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "tx/host/txk_basic.h"
#include "tx/host/txk_entity.h"
#include "tx_host/project.h"

namespace tx::host {
namespace {

namespace fs = std::filesystem;

TEST(SavedNames, AFileThatCannotBeWrittenIsTold) {
  const fs::path example = fs::path(TX_EXAMPLES_DIR) / "small.json";
  ASSERT_TRUE(tx_host_project_load(example.string().c_str())) << tx_host_project_error();
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
