// The collect walk over a tree built from a project (the check tools' propagation over the
// real tree is driven end to end):
//   S2 (collection) > Map (scene) > G (group) > L1, L2 (layers); Map > L3 (layer)
#include "project_fixture.h"

namespace tx {
namespace {

using test::collection;
using test::layer;
using test::project_json;
using test::scene;

struct nodes : test::project_fixture {
  nodes()
      : project_fixture(project_json(
            R"("scenes_2d": )" +
            collection("S2", {scene("1", "Map",
                                    {layer("2", "G", {layer("3", "L1"), layer("4", "L2")}),
                                     layer("5", "L3")})}))) {}
  prjrename_tree_item& s2() const { return at({0}); }
  prjrename_tree_item& map() const { return at({0, 0}); }
  prjrename_tree_item& l1() const { return at({0, 0, 0, 0}); }
  prjrename_tree_item& l3() const { return at({0, 0, 1}); }
  std::vector<std::uint64_t> collected() const {
    uuid_set set;
    root->collect_checked(set);
    std::vector<std::uint64_t> ids;
    for (const tx_uuid u : set) ids.push_back(u.opaque);
    std::sort(ids.begin(), ids.end());
    return ids;
  }
};

TEST(TreeNodes, CollectionsAreNeverCollectedAndTheSceneWalkCanGoThroughGroups) {
  nodes t;
  ASSERT_TRUE(t.loaded) << tx_host_project_error();
  t.s2().checked = true;
  EXPECT_TRUE(t.collected().empty());
  t.l1().checked = true;
  t.l3().checked = true;
  auto& map = static_cast<prjrename_tree_scn&>(t.map());
  EXPECT_EQ(t.collected(), (std::vector<std::uint64_t>{3, 5}));
  map.walk_children = false;  // the groups' direct children only: L3 is under no group
  EXPECT_EQ(t.collected(), (std::vector<std::uint64_t>{3}));
}

}  // namespace
}  // namespace tx
