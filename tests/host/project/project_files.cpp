#include "project_files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tx_host/project.h"

namespace tx::host::testing {

std::string utf8(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return std::string(text.begin(), text.end());
}

std::string example(const std::string& name) { return TX_EXAMPLES_DIR "/" + name; }

std::string bad_file(const std::string& name) { return TX_BAD_PROJECTS_DIR "/" + name; }

std::filesystem::path bad_folder() { return std::filesystem::path(TX_BAD_PROJECTS_DIR); }

std::filesystem::path scratch_folder() {
  const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
  const std::filesystem::path folder = std::filesystem::path(TX_TEST_OUTPUT_DIR) / "scratch" /
                                       (std::string(test->test_suite_name()) + "." + test->name());
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  return folder;
}

std::string read_file(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::string refusal_of(const std::filesystem::path& folder, const std::string& document) {
  const std::filesystem::path file = folder / "project.json";
  std::ofstream(file, std::ios::binary | std::ios::trunc) << document;
  const std::string path = utf8(file);
  if (tx_host_project_load(path.c_str())) return {};
  const std::string error = tx_host_project_error();
  return error.starts_with(path + ": ") ? error.substr(path.size() + 2) : "?" + error;
}

}  // namespace tx::host::testing
