// Every key of every kind of object in a project file: a document that lacks a required key is
// refused with "missing" at the key's place, one that lacks an optional key opens, and a key
// whose value is of another type is refused, whatever the key.
// The documents below are built with literal + std::string, on which mingw's g++ 12 at -O3 warns
// falsely (-Wrestrict inside char_traits).
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wrestrict"
#endif
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "project_files.h"

namespace tx::host::testing {
namespace {

// One object of each kind, every key of each present, every value told apart by its text.
const std::string layer = R"({"uuid":"a3","caption":"Main","group":false,"expanded":false})";
const std::string group = R"({"uuid":"a2","caption":"Streets","group":true,"expanded":true,)"
                          R"("children":[)" +
                          layer + "]}";
const std::string scene = R"({"uuid":"a1","caption":"Map","layers":[)" + group + "]}";
const std::string scenes_2d = R"({"caption":"S2","scenes":[)" + scene + "]}";
const std::string scenes_3d = R"({"caption":"S3","scenes":[{"uuid":"b1","caption":"Relief"}]})";
const std::string layouts = R"({"caption":"L","scenes":[{"uuid":"c1","caption":"Sheet"}]})";
const std::string plugin_collection = R"({"meta_id":"m","caption":"PC","scenes":[]})";
const std::string options = R"({"invert_layers":false})";

std::string member(const std::string& key, const std::string& value) {
  // Built by appending: mingw's g++ 12 at -O3 warns falsely on a literal + std::string.
  std::string out(1, '"');
  return out.append(key).append("\":").append(value);
}

const std::string whole = "{" + member("format", R"("tarvex-project")") + "," +
                          member("version", "1") + "," + member("caption", R"("P")") + "," +
                          member("options", options) + "," + member("scenes_2d", scenes_2d) + "," +
                          member("scenes_3d", scenes_3d) + "," + member("layouts", layouts) + "," +
                          member("plugin_collections", "[" + plugin_collection + "]") + "}";

struct key_row {
  std::string key;
  std::string value;  // as `whole` holds it, where only this key has it
  std::string where;  // the key's JSON pointer
  bool required;
  std::string type;  // as a refusal names it
};

const std::string first_layer = "/scenes_2d/scenes/0/layers/0";
const std::string inner_layer = first_layer + "/children/0";

const std::vector<key_row> keys = {
    // The document.
    {"format", R"("tarvex-project")", "/format", true, "a string"},
    {"version", "1", "/version", true, "an integer"},
    {"caption", R"("P")", "/caption", false, "a string"},
    {"options", options, "/options", false, "an object"},
    {"scenes_2d", scenes_2d, "/scenes_2d", true, "an object"},
    {"scenes_3d", scenes_3d, "/scenes_3d", true, "an object"},
    {"layouts", layouts, "/layouts", true, "an object"},
    {"plugin_collections", "[" + plugin_collection + "]", "/plugin_collections", false, "an array"},
    // The options.
    {"invert_layers", "false", "/options/invert_layers", false, "a boolean"},
    // A collection.
    {"caption", R"("S2")", "/scenes_2d/caption", true, "a string"},
    {"scenes", "[" + scene + "]", "/scenes_2d/scenes", true, "an array"},
    // A plug-in's collection.
    {"meta_id", R"("m")", "/plugin_collections/0/meta_id", true, "a string"},
    {"caption", R"("PC")", "/plugin_collections/0/caption", true, "a string"},
    {"scenes", "[]", "/plugin_collections/0/scenes", true, "an array"},
    // A scene.
    {"uuid", R"("a1")", "/scenes_2d/scenes/0/uuid", true, "a string"},
    {"caption", R"("Map")", "/scenes_2d/scenes/0/caption", true, "a string"},
    {"layers", "[" + group + "]", "/scenes_2d/scenes/0/layers", false, "an array"},
    // A layer group.
    {"uuid", R"("a2")", first_layer + "/uuid", true, "a string"},
    {"caption", R"("Streets")", first_layer + "/caption", true, "a string"},
    {"group", "true", first_layer + "/group", true, "a boolean"},
    {"expanded", "true", first_layer + "/expanded", true, "a boolean"},
    {"children", "[" + layer + "]", first_layer + "/children", false, "an array"},
    // A layer.
    {"uuid", R"("a3")", inner_layer + "/uuid", true, "a string"},
    {"caption", R"("Main")", inner_layer + "/caption", true, "a string"},
    {"group", "false", inner_layer + "/group", true, "a boolean"},
    {"expanded", "false", inner_layer + "/expanded", true, "a boolean"},
};

// `whole` with the row's member taken out (with the comma that joins it to the next member or
// the one before, if any), or its value replaced.
std::string without(const key_row& row) {
  std::string text = whole;
  const std::string m = member(row.key, row.value);
  const std::size_t at = text.find(m);
  if (text[at + m.size()] == ',') return text.erase(at, m.size() + 1);
  if (text[at - 1] == ',') return text.erase(at - 1, m.size() + 1);
  return text.erase(at, m.size());
}

std::string with_value(const key_row& row, const std::string& value) {
  std::string text = whole;
  const std::string m = member(row.key, row.value);
  return text.replace(text.find(m), m.size(), member(row.key, value));
}

TEST(DocumentKeys, TheWholeDocumentOpensAndEachRowsMemberIsInItOnce) {
  EXPECT_EQ(refusal_of(scratch_folder(), whole), "");
  for (const key_row& row : keys) {
    const std::string m = member(row.key, row.value);
    const std::size_t at = whole.find(m);
    ASSERT_NE(at, std::string::npos) << row.where;
    EXPECT_EQ(whole.find(m, at + 1), std::string::npos) << row.where;
  }
}

TEST(DocumentKeys, ARequiredKeyLeftOutIsMissingAndAnOptionalOneIsNot) {
  const auto folder = scratch_folder();
  for (const key_row& row : keys) {
    EXPECT_EQ(refusal_of(folder, without(row)), row.required ? row.where + ": missing" : "")
        << row.where;
  }
}

TEST(DocumentKeys, AValueOfAnotherTypeIsToldWithTheTypeExpected) {
  const auto folder = scratch_folder();
  for (const key_row& row : keys) {
    EXPECT_EQ(refusal_of(folder, with_value(row, "null")),
              row.where + ": expected " + row.type + ", found null")
        << row.where;
    // A value the key's type is not, but not null either: a string, or else a number.
    const bool string = row.type == "a string";
    EXPECT_EQ(
        refusal_of(folder, with_value(row, string ? "0.5" : R"("x")")),
        row.where + ": expected " + row.type + ", found " + (string ? "a number" : "a string"))
        << row.where;
  }
}

}  // namespace
}  // namespace tx::host::testing
