// The nodes' propagation rules and the collect walks, over a tree built from a project:
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
  prjrename_tree_item& g() const { return at({0, 0, 0}); }
  prjrename_tree_item& l1() const { return at({0, 0, 0, 0}); }
  prjrename_tree_item& l2() const { return at({0, 0, 0, 1}); }
  prjrename_tree_item& l3() const { return at({0, 0, 1}); }
  // Ticks as a string, one letter per node in the order root, S2, Map, G, L1, L2, L3.
  std::string ticks() const {
    std::string s;
    for (const prjrename_tree_item* n : {static_cast<prjrename_tree_item*>(root.get()), &s2(),
                                         &map(), &g(), &l1(), &l2(), &l3()}) {
      s += n->checked ? 'x' : '.';
    }
    return s;
  }
  std::vector<std::uint64_t> collected() const {
    uuid_set set;
    root->collect_checked(set);
    std::vector<std::uint64_t> ids;
    for (const tx_uuid u : set) ids.push_back(u.opaque);
    std::sort(ids.begin(), ids.end());
    return ids;
  }
};

TEST(TreeNodes, TickWithoutSelectionReachesEveryNodeIncludingRootAndCollections) {
  nodes t;
  ASSERT_TRUE(t.loaded) << tx_host_project_error();
  t.root->set_check(tx_bool_to_3state(true), t.root->any_selected());
  EXPECT_EQ(t.ticks(), "xxxxxxx");
  EXPECT_EQ(t.collected(), (std::vector<std::uint64_t>{1, 2, 3, 4, 5}));
}

TEST(TreeNodes, WithASelectedGroupOnlyItsSubtreeChanges) {
  nodes t;
  ASSERT_TRUE(t.loaded);
  t.g().selected = true;
  t.l3().checked = true;
  t.root->set_check(tx_bool_to_3state(true), t.root->any_selected());
  EXPECT_EQ(t.ticks(), "...xxxx");
  t.root->set_expanded(false, t.root->any_selected());
  EXPECT_FALSE(t.g().expanded);
  EXPECT_FALSE(t.l1().expanded);
  EXPECT_TRUE(t.map().expanded);
}

TEST(TreeNodes, InvertFlipsEachNodeOnItsOwn) {
  nodes t;
  ASSERT_TRUE(t.loaded);
  t.l1().checked = true;
  t.root->set_check(check_invert, t.root->any_selected());
  EXPECT_EQ(t.ticks(), "xxxx.xx");
  t.l1().selected = true;
  t.l2().selected = true;
  t.root->set_check(check_invert, t.root->any_selected());  // only the two selected layers
  EXPECT_EQ(t.ticks(), "xxxxx.x");
}

TEST(TreeNodes, TickSelectedLetsEachNodeDecideByItsOwnSelection) {
  nodes t;
  ASSERT_TRUE(t.loaded);
  t.g().selected = true;
  t.root->set_check_selected(true);
  EXPECT_EQ(t.ticks(), "...x...");  // the group's unselected children keep their ticks
  t.l3().selected = true;
  t.root->set_check_selected(false);
  EXPECT_EQ(t.ticks(), ".......");
}

TEST(TreeNodes, CollectionsAreNeverCollectedAndTheSceneWalkCanGoThroughGroups) {
  nodes t;
  ASSERT_TRUE(t.loaded);
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
