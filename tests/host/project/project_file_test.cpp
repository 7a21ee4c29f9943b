// Project files: what is refused and how it is told, and that saving writes what reading reads.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "project_files.h"
#include "tx/host/txk_prj.h"
#include "tx/host/txk_scn_2d.h"
#include "tx_host/project.h"

namespace tx::host::testing {
namespace {

struct refusal {
  std::string file;
  std::string where;  // empty: the whole file
  std::string what;
};

// Where too_deep.json goes too deep: the children of its hundredth nested group.
std::string hundredth_group_children() {
  std::string where = "/scenes_2d/scenes/1/layers/0";
  for (int level = 2; level <= 100; ++level) where += "/children/0";
  return where + "/children";
}

// One file per reason a project file is refused.
const std::vector<refusal> refusals = {
    {"bad_json.json", "line 6, column 11",
     "syntax error while parsing object - unexpected string literal; expected '}'"},
    {"not_an_object.json", "", "expected an object, found an array"},
    {"unknown_format.json", "/format",
     "unknown format \"qgis-project\" (expected \"tarvex-project\")"},
    {"unknown_version.json", "/version", "unsupported version 2 (this host reads version 1)"},
    {"missing_field.json", "/scenes_2d/scenes/1/caption", "missing"},
    {"wrong_type.json", "/scenes_2d/scenes/0/layers/0/children/0/expanded",
     "expected a boolean, found a string"},
    {"unknown_key.json", "/scenes_3d/colour", "unknown key"},
    {"bad_uuid.json", "/scenes_2d/scenes/0/layers/1/uuid",
     "not a uuid: \"0x00a4\" (expected 1 to 16 hexadecimal digits)"},
    {"null_uuid.json", "/scenes_2d/scenes/1/uuid", "the null uuid names no element"},
    {"duplicate_uuid.json", "/layouts/scenes/0/layers/1/uuid",
     "duplicate uuid 00000000000000a3 (first at /scenes_2d/scenes/0/layers/0/children/0/uuid)"},
    {"layer_with_children.json", "/scenes_2d/scenes/0/layers/1/children",
     "a layer holds no children (\"group\" is false)"},
    {"too_deep.json", hundredth_group_children(), "groups nested deeper than 100 levels"},
};

std::string expected_message(const std::string& path, const refusal& r) {
  return path + (r.where.empty() ? "" : ": " + r.where) + ": " + r.what;
}

TEST(ProjectFileRefusals, EachBadFileIsToldAndTheOpenProjectStaysAsItWas) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_prj* const open = tx_prj_get_instance();
  tx_entity_set_wcaption(find(0xa01), u"Правка");
  for (const refusal& r : refusals) {
    const std::string path = bad_file(r.file);
    EXPECT_FALSE(tx_host_project_load(path.c_str())) << r.file;
    EXPECT_EQ(tx_host_project_error(), expected_message(path, r));
    EXPECT_EQ(tx_prj_get_instance(), open) << r.file;
    EXPECT_EQ(caption(find(0xa01)), u"Правка") << r.file;
    EXPECT_EQ(tx_host_project_caption_write_count(), 1u) << r.file;
  }
}

TEST(ProjectFileRefusals, EveryFileInTheBadFolderHasItsReason) {
  std::set<std::string> listed;
  for (const refusal& r : refusals) listed.insert(r.file);
  std::set<std::string> present;
  for (const auto& entry : std::filesystem::directory_iterator(bad_folder())) {
    present.insert(utf8(entry.path().filename()));
  }
  EXPECT_EQ(present, listed);
}

TEST(ProjectFileRefusals, WhatIsNotAFileIsToldByName) {
  tx_host_project_clear();
  const std::filesystem::path folder = scratch_folder();
  const struct {
    std::string path;
    std::string message;
  } rows[] = {
      {utf8(folder / "missing.json"), utf8(folder / "missing.json") + ": no such file"},
      {utf8(folder), utf8(folder) + ": is a folder, not a project file"},
  };
  for (const auto& row : rows) {
    EXPECT_FALSE(tx_host_project_load(row.path.c_str()));
    EXPECT_EQ(tx_host_project_error(), row.message);
    EXPECT_EQ(tx_prj_get_instance(), nullptr);
  }
  EXPECT_FALSE(tx_host_project_load(nullptr));
}

TEST(ProjectFileRefusals, ASuccessClearsTheMessage) {
  EXPECT_FALSE(tx_host_project_load(bad_file("missing_field.json").c_str()));
  EXPECT_STRNE(tx_host_project_error(), "");
  EXPECT_TRUE(tx_host_project_load(example("empty.json").c_str()));
  EXPECT_STREQ(tx_host_project_error(), "");
}

TEST(ProjectFileRoundTrip, UnchangedExamplesAreSavedByteForByte) {
  const std::filesystem::path folder = scratch_folder();
  for (const char* name : {"city.json", "small.json", "empty.json"}) {
    ASSERT_TRUE(tx_host_project_load(example(name).c_str())) << tx_host_project_error();
    const std::string saved = utf8(folder / name);
    ASSERT_TRUE(tx_host_project_save(saved.c_str())) << tx_host_project_error();
    EXPECT_EQ(read_file(saved), read_file(std::filesystem::path(example(name)))) << name;
  }
}

TEST(ProjectFileRoundTrip, ChangedCaptionsAreWhatIsReadBack) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_prj* const project = tx_prj_get_instance();
  tx_entity* const collection =
      tx_entities_safe_upcast(tx_scns_2d_safe_upcast(tx_prj_get_layouts_data_ptr(project)));
  const struct {
    tx_entity* entity;
    std::uint64_t uuid;  // 0: found through `entity` again after reading
    const char16_t* caption;
  } changes[] = {
      {find(0xa01), 0xa01, u"Карта города"},
      {find(0xa02), 0xa02, u"Дороги \"главные\""},
      {find(0xa03), 0xa03, u"Шоссе 𝔸 ✓"},
      {find(0xe02), 0xe02, u""},
      {collection, 0, u"Макеты"},
  };
  for (const auto& change : changes) tx_entity_set_wcaption(change.entity, change.caption);

  const std::filesystem::path folder = scratch_folder();
  const std::string first = utf8(folder / "first.json");
  const std::string second = utf8(folder / "second.json");
  ASSERT_TRUE(tx_host_project_save(first.c_str())) << tx_host_project_error();
  ASSERT_TRUE(tx_host_project_load(first.c_str())) << tx_host_project_error();
  EXPECT_NE(tx_prj_get_instance(), nullptr);
  for (const auto& change : changes) {
    tx_entity* const read = change.uuid != 0
                                ? find(change.uuid)
                                : tx_entities_safe_upcast(tx_scns_2d_safe_upcast(
                                      tx_prj_get_layouts_data_ptr(tx_prj_get_instance())));
    EXPECT_EQ(caption(read), change.caption);
  }
  EXPECT_EQ(caption(find(0xa04)), u"Тропы");
  ASSERT_TRUE(tx_host_project_save(second.c_str()));
  EXPECT_EQ(read_file(second), read_file(first));
}

TEST(ProjectFileRoundTrip, SavingOverAnOldFileReplacesIt) {
  const std::filesystem::path folder = scratch_folder();
  const std::string target = utf8(folder / "project.json");
  ASSERT_TRUE(tx_host_project_load(example("empty.json").c_str()));
  ASSERT_TRUE(tx_host_project_save(target.c_str()));
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  ASSERT_TRUE(tx_host_project_save(target.c_str())) << tx_host_project_error();
  EXPECT_EQ(read_file(target), read_file(std::filesystem::path(example("small.json"))));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder),
                          std::filesystem::directory_iterator()),
            1);
}

TEST(ProjectFileRoundTrip, PathsAreUtf8) {
  const std::filesystem::path folder = scratch_folder() / u8"Город Н";
  std::filesystem::create_directory(folder);
  const std::string path = utf8(folder / u8"проект «центр».json");
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  ASSERT_TRUE(tx_host_project_save(path.c_str())) << tx_host_project_error();
  tx_host_project_clear();
  ASSERT_TRUE(tx_host_project_load(path.c_str())) << tx_host_project_error();
  EXPECT_EQ(caption(find(0xa01)), u"Карта");
}

TEST(ProjectFileRoundTrip, AFailedSaveLeavesWhatWasThereAndNoTemporaryFile) {
  const std::filesystem::path folder = scratch_folder();
  // A folder where the file should go: the temporary file is written, the rename fails.
  const std::filesystem::path occupied = folder / "occupied.json";
  std::filesystem::create_directory(occupied);
  std::ofstream(occupied / "keep.txt") << "kept";
  const std::filesystem::path no_folder = folder / "missing" / "project.json";

  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  for (const std::filesystem::path& target : {occupied, no_folder}) {
    const std::string path = utf8(target);
    EXPECT_FALSE(tx_host_project_save(path.c_str())) << path;
    EXPECT_TRUE(std::string(tx_host_project_error()).starts_with(path + ": cannot "))
        << tx_host_project_error();
  }
  EXPECT_EQ(read_file(occupied / "keep.txt"), "kept");
  EXPECT_FALSE(std::filesystem::exists(folder / "missing"));
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(utf8(entry.path().filename()));
  }
  EXPECT_EQ(names, std::vector<std::string>{"occupied.json"});
}

TEST(ProjectFileRoundTrip, NothingOpenIsNothingToSave) {
  tx_host_project_clear();
  const std::filesystem::path target = scratch_folder() / "nothing.json";
  EXPECT_FALSE(tx_host_project_save(utf8(target).c_str()));
  EXPECT_EQ(tx_host_project_error(), utf8(target) + ": no project is open");
  EXPECT_FALSE(std::filesystem::exists(target));
}

}  // namespace
}  // namespace tx::host::testing
