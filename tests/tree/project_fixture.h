// A project for one test: written from JSON text to a file, opened in the reference host, and a
// tree built from it. Also the host's records (warnings, progress, caption writes), cleared at
// the start.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "tree/build.h"
#include "tree/tree_nodes.h"
#include "tx/host/txk_basic.h"
#include "tx/host/txk_prj.h"
#include "tx_host/basic.h"
#include "tx_host/msgs.h"
#include "tx_host/project.h"

namespace tx::test {

// A project document with `body`; the collections and options it leaves out are empty.
inline std::string project_json(const std::string& body) {
  std::string text = R"({"format": "tarvex-project", "version": 1, "caption": "P", )" + body;
  const std::pair<const char*, const char*> defaults[] = {
      {"\"options\"", R"("options": {"invert_layers": false})"},
      {"\"scenes_2d\"", R"("scenes_2d": {"caption": "S2", "scenes": []})"},
      {"\"scenes_3d\"", R"("scenes_3d": {"caption": "S3", "scenes": []})"},
      {"\"layouts\"", R"("layouts": {"caption": "L", "scenes": []})"},
      {"\"plugin_collections\"", R"("plugin_collections": [])"}};
  for (const auto& [key, empty] : defaults) {
    if (body.find(key) == std::string::npos) text += std::string(", ") + empty;
  }
  return text + "}";
}

// The items of a JSON array, without the brackets.
inline std::string joined(const std::vector<std::string>& items) {
  std::string text;
  for (const std::string& item : items) text += (text.empty() ? "" : ", ") + item;
  return text;
}

// A layer entry, expanded; a group when it has children.
inline std::string layer(const char* uuid, const char* caption,
                         const std::vector<std::string>& children = {}) {
  return std::string(R"({"uuid": ")") + uuid + R"(", "caption": ")" + caption +
         R"(", "expanded": true, "group": )" +
         (children.empty() ? "false}" : "true, \"children\": [" + joined(children) + "]}");
}

inline std::string scene(const char* uuid, const char* caption,
                         const std::vector<std::string>& layers) {
  return std::string(R"({"uuid": ")") + uuid + R"(", "caption": ")" + caption +
         R"(", "layers": [)" + joined(layers) + "]}";
}

inline std::string collection(const char* caption, const std::vector<std::string>& scenes) {
  return std::string(R"({"caption": ")") + caption + R"(", "scenes": [)" + joined(scenes) + "]}";
}

// A project whose one 2D scene, "Map" (uuid 1), holds `layers`.
inline std::string map_project(const std::vector<std::string>& layers) {
  return project_json(R"("scenes_2d": )" + collection("S2", {scene("1", "Map", layers)}));
}

struct project_fixture {
  std::unique_ptr<prjrename_tree_group> root;

  explicit project_fixture(const std::string& json) {
    // One file per test: ctest runs the cases of this program in parallel processes.
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    const std::string path =
        testing::TempDir() + "tree_" + test->test_suite_name() + "_" + test->name() + ".json";
    std::ofstream(path, std::ios::binary) << json;
    loaded = tx_host_project_load(path.c_str());
    if (!loaded) ADD_FAILURE() << tx_host_project_error();
    std::remove(path.c_str());
    tx_host_msgs_clear();
    tx_host_project_clear_records();
    if (loaded) build_tree(tx_prj_get_instance(), root);
  }
  bool loaded = false;

  prjrename_tree_item& at(std::initializer_list<std::size_t> path) const {
    prjrename_tree_item* node = root.get();
    for (const std::size_t i : path) node = node->visible_child(i);
    return *node;
  }
};

inline tx_uuid uuid(std::uint64_t value) { return tx_uuid{value}; }

inline std::vector<std::u16string> warnings() {
  std::vector<std::u16string> shown;
  for (std::size_t i = 0; i < tx_host_msgs_warning_count(); ++i) {
    shown.emplace_back(tx_host_msgs_warning(i));
  }
  return shown;
}

}  // namespace tx::test
