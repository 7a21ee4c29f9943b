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

std::string read(std::FILE* file) {
  std::rewind(file);
  std::string all;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) all += static_cast<char>(c);
  return all;
}

struct streams {
  std::FILE* out = std::tmpfile();
  std::FILE* err = std::tmpfile();
  ~streams() {
    std::fclose(out);
    std::fclose(err);
  }
};

TEST(SavedNames, AFileThatCannotBeWrittenIsTold) {
  const fs::path example = fs::path(TX_EXAMPLES_DIR) / "small.json";
  ASSERT_TRUE(tx_host_project_load(example.string().c_str())) << tx_host_project_error();
  tx_entity_set_wcaption(tx_host_project_find(tx_uuid{0xa02}), u"Улицы");
  const fs::path nowhere = fs::path(TX_TEST_OUTPUT_DIR) / "no_such_folder" / "x.json";
  streams s;
  EXPECT_FALSE(save_written_names(nowhere.string(), s.out, s.err));
  EXPECT_EQ(read(s.out), "");
  EXPECT_TRUE(read(s.err).starts_with("txhost: ")) << read(s.err);
  tx_host_project_clear();
}

}  // namespace
}  // namespace tx::host
