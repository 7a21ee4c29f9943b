// After a utility ran: the names it wrote are saved into the project file and listed; nothing is
// written when it wrote none, and a file that cannot be written is told.
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

// A copy of the small example, opened.
fs::path open_copy(const char* name) {
  const fs::path copy = fs::path(TX_TEST_OUTPUT_DIR) / name;
  // Removed first: under Wine the runtime's copy refuses to overwrite, whatever it is told.
  fs::remove(copy);
  fs::copy_file(fs::path(TX_EXAMPLES_DIR) / "small.json", copy);
  EXPECT_TRUE(tx_host_project_load(copy.string().c_str())) << tx_host_project_error();
  return copy;
}

struct streams {
  std::FILE* out = std::tmpfile();
  std::FILE* err = std::tmpfile();
  ~streams() {
    std::fclose(out);
    std::fclose(err);
  }
};

TEST(SavedNames, TheWrittenNamesAreSavedAndListedInOrder) {
  const fs::path copy = open_copy("saved_names_written.json");
  tx_entity_set_wcaption(tx_host_project_find(tx_uuid{0xa02}), u"Улицы");
  tx_entity_set_wcaption(tx_host_project_find(tx_uuid{0xa05}), u"Реки и ручьи");
  streams s;
  EXPECT_TRUE(save_written_names(copy.string(), s.out, s.err));
  EXPECT_EQ(read(s.out),
            "saved " + copy.string() + ": 2 names\n  Дороги → Улицы\n  Реки → Реки и ручьи\n");
  EXPECT_EQ(read(s.err), "");
  ASSERT_TRUE(tx_host_project_load(copy.string().c_str()));
  std::u16string caption;
  tx_string_adp* adapter =
      tx_string_adp_create(&caption, [](void* target, const char16_t* text, size_t length) {
        static_cast<std::u16string*>(target)->assign(text, length);
      });
  tx_entity_get_wcaption(tx_host_project_find(tx_uuid{0xa02}), adapter);
  tx_string_adp_destroy(adapter);
  EXPECT_EQ(caption, u"Улицы");
  tx_host_project_clear();
}

TEST(SavedNames, NothingIsWrittenWhenNoNameWas) {
  const fs::path copy = open_copy("saved_names_none.json");
  fs::remove(copy);  // a save would bring it back
  streams s;
  EXPECT_TRUE(save_written_names(copy.string(), s.out, s.err));
  EXPECT_EQ(read(s.out) + read(s.err), "");
  EXPECT_FALSE(fs::exists(copy));
  tx_host_project_clear();
}

TEST(SavedNames, AFileThatCannotBeWrittenIsTold) {
  open_copy("saved_names_unwritable.json");
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
