// Building the tree from the reference host's project.
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

const std::string one_scene = collection("S2", {scene("1", "Map", {layer("2", "Roads")})});

TEST(BuildTree, CollectionsInOrderEachOnlyWhenNotEmpty) {
  struct row {
    const char* name;
    std::string body;
    std::vector<std::u16string> rows;
  };
  const std::string meta = R"("meta_id": "plugin_scn_2d_well_planshet_collection3", )";
  const std::vector<row> rows{
      {"nothing", R"("scenes_2d": {"caption": "S2", "scenes": []})", {}},
      {"all four",
       R"("scenes_2d": )" + one_scene + R"(, "scenes_3d": )" +
           collection("S3", {scene("10", "Relief", {})}) + R"(, "layouts": )" +
           collection("L", {scene("20", "Sheet", {})}) + R"(, "plugin_collections": [{)" + meta +
           R"("caption": "Wells", "scenes": [)" + scene("30", "Well", {}) + "]}]",
       {u"S2", u"S3", u"L", u"Wells"}},
      {"layouts after 3D, no 2D",
       R"("layouts": )" + collection("L", {scene("20", "Sheet", {})}) + R"(, "scenes_3d": )" +
           collection("S3", {scene("10", "Relief", {})}),
       {u"S3", u"L"}},
  };
  for (const row& r : rows) {
    test::project_fixture p(project_json(r.body));
    ASSERT_TRUE(p.loaded) << r.name << ": " << tx_host_project_error();
    EXPECT_EQ(row_captions(*p.root), r.rows) << r.name;
    EXPECT_FALSE(p.root->has_entity());
  }
}

TEST(BuildTree, OnlyTheFirstExactlyMatchingPluginCollectionIsShown) {
  auto plugin = [](const char* meta_id, const char* caption, bool with_scene, const char* uuid) {
    return std::string(R"({"meta_id": ")") + meta_id + R"(", "caption": ")" + caption +
           R"(", "scenes": [)" + (with_scene ? scene(uuid, "W", {}) : std::string()) + "]}";
  };
  const char* exact = "plugin_scn_2d_well_planshet_collection3";
  struct row {
    const char* name;
    std::vector<std::string> collections;
    std::vector<std::u16string> rows;
  };
  for (const row& r : std::vector<row>{
           {"prefix and suffix do not match",
            {plugin("plugin_scn_2d_well_planshet_collection", "A", true, "1"),
             plugin("plugin_scn_2d_well_planshet_collection3x", "B", true, "2")},
            {}},
           {"first of two", {plugin(exact, "A", true, "1"), plugin(exact, "B", true, "2")}, {u"A"}},
           {"first is empty", {plugin(exact, "A", false, "1"), plugin(exact, "B", true, "2")}, {}},
           {"other meta id skipped",
            {plugin("other", "X", true, "1"), plugin(exact, "B", true, "2")},
            {u"B"}}}) {
    std::string list;
    for (std::size_t i = 0; i < r.collections.size(); ++i) {
      list += (i ? ", " : "") + r.collections[i];
    }
    test::project_fixture p(project_json(R"("plugin_collections": [)" + list + "]"));
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
  test::project_fixture p(project_json(R"("scenes_2d": )" + one_scene));
  ASSERT_TRUE(p.loaded);
  const prjrename_tree_group* old = p.root.get();
  build_tree(nullptr, p.root);
  EXPECT_NE(p.root.get(), old);
  EXPECT_EQ(p.root->visible_child_count(), 0u);
}

}  // namespace
}  // namespace tx
