// Building the tree from the reference host's project, and collecting the ticked elements from
// it. (The collections in their order, each shown only when it has scenes, are in every printed
// dialog of the end-to-end cases, over examples/small.json and examples/empty.json.)
#include "project_fixture.h"

namespace tx {
namespace {

using test::collection;
using test::layer;
using test::project_json;
using test::scene;

std::u16string caption_of(const prjrename_tree_item& node) {
  std::u16string text = u"<none>";
  node.get_caption([&](const char16_t* t) { text = t; });
  return text;
}

std::vector<std::u16string> row_captions(const prjrename_tree_item& node) {
  std::vector<std::u16string> captions;
  for (std::size_t i = 0; i < node.visible_child_count(); ++i) {
    captions.push_back(caption_of(*node.visible_child(i)));
  }
  return captions;
}

// (Another meta id before the exact one is examples/small.json, end to end.)
TEST(BuildTree, OnlyTheFirstExactlyMatchingPluginCollectionIsShown) {
  auto plugin = [](const char* meta_id, const char* caption, bool with_scene, const char* uuid) {
    return std::string(R"({"meta_id": ")") + meta_id + R"(", "caption": ")" + caption +
           R"(", "scenes": [)" + (with_scene ? scene(uuid, "W", {}) : std::string()) + "]}";
  };
  const char* exact = "plugin_scn_2d_well_planshet_collection3";
  const struct {
    const char* name;
    std::string collections;
    std::vector<std::u16string> rows;
  } rows[] = {
      {"prefix and suffix do not match",
       plugin("plugin_scn_2d_well_planshet_collection", "A", true, "1") + ", " +
           plugin("plugin_scn_2d_well_planshet_collection3x", "B", true, "2"),
       {}},
      {"two exact", plugin(exact, "A", true, "1") + ", " + plugin(exact, "B", true, "2"), {u"A"}},
      {"first is empty", plugin(exact, "A", false, "1") + ", " + plugin(exact, "B", true, "2"), {}},
  };
  for (const auto& r : rows) {
    test::project_fixture p(project_json(R"("plugin_collections": [)" + r.collections + "]"));
    ASSERT_TRUE(p.loaded) << r.name << ": " << tx_host_project_error();
    EXPECT_EQ(row_captions(*p.root), r.rows) << r.name;
  }
}

TEST(BuildTree, InvertLayersReversesEveryLevelAndGroupsArePreOrder) {
  const std::string layers =
      scene("1", "Map",
            {layer("2", "A", {layer("3", "A1"), layer("4", "A2", {layer("5", "A2x")})}),
             layer("6", "B"), layer("7", "C", {layer("8", "C1")})});
  for (const bool invert : {false, true}) {
    test::project_fixture p(project_json(std::string(R"("options": {"invert_layers": )") +
                                         (invert ? "true" : "false") + R"(}, "scenes_2d": )" +
                                         collection("S2", {layers})));
    ASSERT_TRUE(p.loaded) << tx_host_project_error();
    const auto& map = static_cast<const prjrename_tree_scn&>(p.at({0, 0}));
    const std::vector<std::u16string> top = invert ? std::vector<std::u16string>{u"C", u"B", u"A"}
                                                   : std::vector<std::u16string>{u"A", u"B", u"C"};
    EXPECT_EQ(row_captions(map), top);
    const std::size_t a = invert ? 2 : 0;
    EXPECT_EQ(row_captions(p.at({0, 0, a})), invert ? (std::vector<std::u16string>{u"A2", u"A1"})
                                                    : (std::vector<std::u16string>{u"A1", u"A2"}));
    std::vector<std::u16string> groups;
    for (const auto* g : map.groups) groups.push_back(caption_of(*g));
    EXPECT_EQ(groups, invert ? (std::vector<std::u16string>{u"C", u"A", u"A2"})
                             : (std::vector<std::u16string>{u"A", u"A2", u"C"}));
  }
}

TEST(BuildTree, ANullProjectGivesAnEmptyRootAndReplacesTheOldTree) {
  test::project_fixture p(test::map_project({layer("2", "A")}));
  ASSERT_TRUE(p.loaded);
  const prjrename_tree_group* old = p.root.get();
  build_tree(nullptr, p.root);
  EXPECT_NE(p.root.get(), old);
  EXPECT_EQ(p.root->visible_child_count(), 0u);
}

// The uuids collected from the ticked nodes, in the order of the walk.
std::vector<std::uint64_t> collected(const prjrename_tree_item& root) {
  uuid_set set;
  root.collect_checked(set);
  std::vector<std::uint64_t> ids;
  for (const tx_uuid u : set) ids.push_back(u.opaque);
  return ids;
}

// The collect walk: S2 (collection) > Map (scene) > G (group) > L1, L2 (layers); Map > L3 (layer).
// (The check tools' propagation over the real tree is driven end to end.)
TEST(TreeNodes, CollectionsAreNeverCollectedAndTheSceneWalkCanGoThroughGroups) {
  test::project_fixture t(
      test::map_project({layer("2", "G", {layer("3", "L1"), layer("4", "L2")}), layer("5", "L3")}));
  ASSERT_TRUE(t.loaded) << tx_host_project_error();
  t.at({0}).checked = true;
  EXPECT_TRUE(collected(*t.root).empty());
  t.at({0, 0, 0, 0}).checked = true;
  t.at({0, 0, 1}).checked = true;
  EXPECT_EQ(collected(*t.root), (std::vector<std::uint64_t>{3, 5}));
  // Through the groups and their direct children only: L3 is under no group.
  static_cast<prjrename_tree_scn&>(t.at({0, 0})).walk_children = false;
  EXPECT_EQ(collected(*t.root), (std::vector<std::uint64_t>{3}));
}

}  // namespace
}  // namespace tx
