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
  std::string path;
  std::string where;  // empty: the whole file
  std::string what;
};

// Where too_deep.json goes too deep: the children of its hundredth nested group.
std::string hundredth_group_children() {
  std::string where = "/scenes_2d/scenes/1/layers/0";
  for (int level = 2; level <= 100; ++level) where += "/children/0";
  return where + "/children";
}

// One file of the bad folder per reason a project file is refused, then what is not a file.
const std::vector<refusal> refusals = {
    {bad_file("bad_json.json"), "line 6, column 3",
     "missing a comma or '}' after an object member"},
    {bad_file("number_overflow.json"), "line 5, column 32",
     "number too big to be stored in double"},
    {bad_file("not_an_object.json"), "", "expected an object, found an array"},
    {bad_file("unknown_format.json"), "/format",
     "unknown format \"qgis-project\" (expected \"tarvex-project\")"},
    {bad_file("unknown_version.json"), "/version",
     "unsupported version 2 (this host reads version 1)"},
    {bad_file("missing_field.json"), "/scenes_2d/scenes/1/caption", "missing"},
    {bad_file("wrong_type.json"), "/scenes_2d/scenes/0/layers/0/children/0/expanded",
     "expected a boolean, found a string"},
    {bad_file("unknown_key.json"), "/scenes_3d/colour", "unknown key"},
    {bad_file("bad_uuid.json"), "/scenes_2d/scenes/0/layers/1/uuid",
     "not a uuid: \"0x00a4\" (expected 1 to 16 hexadecimal digits)"},
    {bad_file("null_uuid.json"), "/scenes_2d/scenes/1/uuid", "the null uuid names no element"},
    {bad_file("duplicate_uuid.json"), "/layouts/scenes/0/layers/1/uuid",
     "duplicate uuid 00000000000000a3 (first at /scenes_2d/scenes/0/layers/0/children/0/uuid)"},
    {bad_file("layer_with_children.json"), "/scenes_2d/scenes/0/layers/1/children",
     "a layer holds no children (\"group\" is false)"},
    {bad_file("too_deep.json"), hundredth_group_children(), "groups nested deeper than 100 levels"},
    {bad_file("no_such.json"), "", "no such file"},
    {utf8(bad_folder()), "", "is a folder, not a project file"},
};

TEST(ProjectFileRefusals, EachIsToldAndTheOpenProjectStaysAsItWasUntilASuccess) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_prj* const open = tx_prj_get_instance();
  tx_entity_set_wcaption(find(0xa01), u"Правка");
  for (const refusal& r : refusals) {
    EXPECT_FALSE(tx_host_project_load(r.path.c_str())) << r.path;
    EXPECT_EQ(tx_host_project_error(),
              r.path + (r.where.empty() ? "" : ": " + r.where) + ": " + r.what);
    EXPECT_EQ(tx_prj_get_instance(), open) << r.path;
    EXPECT_EQ(caption(find(0xa01)), u"Правка") << r.path;
    EXPECT_EQ(tx_host_project_caption_write_count(), 1u) << r.path;
  }
  EXPECT_FALSE(tx_host_project_load(nullptr));
  EXPECT_EQ(tx_prj_get_instance(), open);
  EXPECT_TRUE(tx_host_project_load(example("empty.json").c_str()));
  EXPECT_STREQ(tx_host_project_error(), "");
}

TEST(ProjectFileRefusals, EveryFileInTheBadFolderHasItsReason) {
  std::set<std::string> listed;
  for (const refusal& r : refusals) listed.insert(utf8(std::filesystem::path(r.path).filename()));
  for (const auto& entry : std::filesystem::directory_iterator(bad_folder())) {
    EXPECT_TRUE(listed.contains(utf8(entry.path().filename()))) << entry.path();
  }
}

// A whole document: `before` first in the project's object, then its format and `version`, and
// the three collections, the 2D scenes holding `scenes`.
std::string document(std::string_view before, std::string_view scenes = "",
                     std::string_view version = "1") {
  return "{" + std::string(before) + R"("format":"tarvex-project","version":)" +
         std::string(version) + R"(,"scenes_2d":{"caption":"S","scenes":[)" + std::string(scenes) +
         R"(]},"scenes_3d":{"caption":"T","scenes":[]},"layouts":{"caption":"L","scenes":[]}})";
}

// A scene whose layers are `levels` groups, each in the one before; the last one has no children.
std::string nested_groups(int levels) {
  std::string text = R"({"uuid":"1","caption":"s","layers":[)";
  for (int level = 1; level <= levels; ++level) {
    text += R"({"uuid":")" + std::to_string(level + 1) +
            R"(","caption":"g","group":true,"expanded":true)";
    text += level < levels ? R"(,"children":[)" : "}";
  }
  for (int level = 1; level < levels; ++level) text += "]}";
  return text + "]}";
}

struct document_case {
  const char* name;
  std::string text;
  std::string where;
  std::string what;  // empty: the document is read
};

// What only a reader that streams through the document can get wrong: the order in which faults
// are told, where a value stands when its key comes late, and what follows a fault.
const std::vector<document_case> streamed_documents = {
    {"an unknown key before a newer version", document(R"("colour":1,)", "", "2"), "/version",
     "unsupported version 2 (this host reads version 1)"},
    {"broken JSON after a fault", R"({"colour":1,"format":"tarvex-project","version":1,])",
     "line 1, column 51", "missing a name for object member"},
    {"a column counted in characters", R"({"caption":"Проект" "x"})", "line 1, column 21",
     "missing a comma or '}' after an object member"},
    {"a NUL byte after the document", document("") + std::string(1, '\0') + "{}",
     "line 1, column " + std::to_string(document("").size() + 1),
     "the document root must not be followed by other values"},
    {"a key twice", document(R"("caption":"a","caption":"b",)"), "/caption", "duplicate key"},
    {"a key that a pointer escapes", document(R"("a/b~c":1,)"), "/a~1b~0c", "unknown key"},
    {"an unpaired surrogate", document("", R"({"uuid":"1","caption":"x\udc00"})"),
     "/scenes_2d/scenes/0/caption", "\\udc00 is half of a surrogate pair, not a character"},
    {"children before group says a layer",
     document("", R"({"uuid":"1","caption":"s","layers":[{"uuid":"2","caption":"l",)"
                  R"("children":[],"expanded":false,"group":false}]})"),
     "/scenes_2d/scenes/0/layers/0/children", "a layer holds no children (\"group\" is false)"},
    {"a deep value under an unknown key",
     document(R"("colour":)" + std::string(100000, '[') + std::string(100000, ']') + ","),
     "/colour", "unknown key"},
    {"deep nesting that never ends", std::string(100000, '['), "",
     "expected an object, found an array"},
    {"a byte order mark", "\xEF\xBB\xBF" + document(""), "", ""},
    {"bytes that are not UTF-8", document("\"caption\":\"Pr\xC3\x28\","), "line 1, column 15",
     "invalid encoding in string"},
    {"a second document after the first", document("") + "\n{}", "line 2, column 1",
     "the document root must not be followed by other values"},
    // The order of the faults: broken JSON, then the format, then the version, then the rest.
    {"a wrong format before a newer version", R"({"version":2,"format":"qgis-project","colour":1})",
     "/format", "unknown format \"qgis-project\" (expected \"tarvex-project\")"},
    {"broken JSON after a wrong format", R"({"format":"qgis-project","version":2,)",
     "line 1, column 38", "missing a name for object member"},
    {"a version that is a fraction", document("", "", "1.0"), "/version",
     "expected an integer, found a number"},
    // Uuids: 1 to 16 hexadecimal digits of either case, leading zeros or not.
    {"a uuid in both cases and with leading zeros",
     document("", R"({"uuid":"A1","caption":"a"},{"uuid":"00a1","caption":"b"})"),
     "/scenes_2d/scenes/1/uuid",
     "duplicate uuid 00000000000000a1 (first at /scenes_2d/scenes/0/uuid)"},
    {"a uuid of sixteen digits", document("", R"({"uuid":"FFFFFFFFFFFFFFFF","caption":"a"})"), "",
     ""},
    {"a uuid of seventeen digits", document("", R"({"uuid":"10000000000000000","caption":"a"})"),
     "/scenes_2d/scenes/0/uuid",
     "not a uuid: \"10000000000000000\" (expected 1 to 16 hexadecimal digits)"},
    {"an empty uuid", document("", R"({"uuid":"","caption":"a"})"), "/scenes_2d/scenes/0/uuid",
     "not a uuid: \"\" (expected 1 to 16 hexadecimal digits)"},
    {"groups nested 100 levels deep", document("", nested_groups(100)), "", ""},
};

TEST(ProjectFileRefusals, StreamedDocumentsAreToldInOrderAndByTheirPlace) {
  const std::filesystem::path folder = scratch_folder();
  for (const document_case& c : streamed_documents) {
    const std::string path = utf8(folder / "project.json");
    std::ofstream(folder / "project.json", std::ios::binary) << c.text;
    const bool loaded = tx_host_project_load(path.c_str());
    EXPECT_EQ(loaded, c.what.empty()) << c.name;
    if (!c.what.empty()) {
      EXPECT_EQ(tx_host_project_error(),
                path + (c.where.empty() ? "" : ": " + c.where) + ": " + c.what)
          << c.name;
    }
  }
}

// Each example saved over the one before it: the file is replaced whole, and only it is left.
TEST(ProjectFileRoundTrip, UnchangedExamplesAreSavedByteForByteOverTheOldFile) {
  const std::filesystem::path folder = scratch_folder();
  const std::string target = utf8(folder / "project.json");
  for (const char* name : {"city.json", "small.json", "empty.json"}) {
    ASSERT_TRUE(tx_host_project_load(example(name).c_str())) << tx_host_project_error();
    ASSERT_TRUE(tx_host_project_save(target.c_str())) << tx_host_project_error();
    EXPECT_EQ(read_file(target), read_file(std::filesystem::path(example(name)))) << name;
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder),
                          std::filesystem::directory_iterator()),
            1);
}

// (Saved names compared byte for byte are the end-to-end cases' and the project-file fuzzer's;
// here, a path that is not ASCII and captions that need escaping.)
TEST(ProjectFileRoundTrip, ChangedCaptionsAreWhatIsReadBack) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  const std::pair<std::uint64_t, const char16_t*> changes[] = {
      {0xa02, u"Дороги \"главные\""}, {0xa03, u"Шоссе 𝔸 ✓"}, {0xe02, u""}};
  for (const auto& [uuid, text] : changes) tx_entity_set_wcaption(find(uuid), text);
  const std::filesystem::path folder = scratch_folder() / u8"Город Н";
  std::filesystem::create_directory(folder);
  const std::string path = utf8(folder / u8"проект «центр».json");
  ASSERT_TRUE(tx_host_project_save(path.c_str())) << tx_host_project_error();
  ASSERT_TRUE(tx_host_project_load(path.c_str())) << tx_host_project_error();
  for (const auto& [uuid, text] : changes) EXPECT_EQ(caption(find(uuid)), text) << uuid;
}

// Clearing the records lets go of the captions that renames replaced: every caption reads as it
// did, a removed element's too, and the project saves to the same bytes.
TEST(ProjectFileRoundTrip, ClearingTheRecordsKeepsEveryCaption) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_entity* const project = tx_prj_safe_upcast(tx_prj_get_instance());
  tx_entity* const highway = find(0xa03);
  tx_entity_set_wcaption(find(0xa02), u"Дороги главные");
  tx_entity_set_wcaption(highway, u"Трасса");
  tx_entity_set_wcaption(find(0xa02), u"Дороги");
  tx_entity_set_wcaption(project, u"Проект 𝔸");
  tx_entity_set_wcaption(find(0xe02), u"");
  ASSERT_TRUE(tx_host_project_remove(tx_uuid{0xa02}));  // with the highway beneath it
  const std::vector<std::uint64_t> live = {0xa01, 0xa05, 0xa06, 0xb01, 0xc01, 0xc02, 0xd01, 0xe01};
  std::vector<std::u16string> captions;
  for (const std::uint64_t uuid : live) captions.push_back(caption(find(uuid)));
  const std::filesystem::path folder = scratch_folder();
  ASSERT_TRUE(tx_host_project_save(utf8(folder / "before.json").c_str()));

  tx_host_project_clear_records();
  for (std::size_t i = 0; i < live.size(); ++i) {
    EXPECT_EQ(caption(find(live[i])), captions[i]) << live[i];
  }
  EXPECT_EQ(caption(highway), u"Трасса");
  EXPECT_EQ(caption(project), u"Проект 𝔸");
  ASSERT_TRUE(tx_host_project_save(utf8(folder / "after.json").c_str()));
  EXPECT_EQ(read_file(folder / "after.json"), read_file(folder / "before.json"));
}

TEST(ProjectFileRoundTrip, AFailedSaveLeavesWhatWasThereAndNoFile) {
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
  // Nothing open is nothing to save.
  tx_host_project_clear();
  const std::string nothing = utf8(folder / "nothing.json");
  EXPECT_FALSE(tx_host_project_save(nothing.c_str()));
  EXPECT_EQ(tx_host_project_error(), nothing + ": no project is open");
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(utf8(entry.path().filename()));
  }
  EXPECT_EQ(names, std::vector<std::string>{"occupied.json"});
}

}  // namespace
}  // namespace tx::host::testing
