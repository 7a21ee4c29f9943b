// The name store's history, checked after every step: entries, both stacks, can_undo/can_redo,
// and how often `changed` fired.
#include "tree/names.h"

#include "project_fixture.h"
#include "rename/insert.h"

namespace tx {
namespace {

using test::collection;
using test::layer;
using test::project_json;
using test::scene;

// What the store should hold after a step.
struct expected_state {
  std::vector<std::pair<std::uint64_t, std::u16string>> entries;  // uuid, new name
  std::size_t undo;
  std::size_t redo;
  int signals;
};

struct store : test::project_fixture {
  prjrename_names names;
  int signals = 0;
  events::connection listener = names.changed.connect([this] { ++signals; });
  prjrename_insert insert;

  store()
      : project_fixture(project_json(
            R"("scenes_2d": )" +
            collection("S2", {scene("1", "Map", {layer("2", "Roads"), layer("3", "Rivers")})}))) {}

  void check(const expected_state& e, const char* step) const {
    std::vector<std::pair<std::uint64_t, std::u16string>> held;
    for (const auto& [uuid, name] : names.entries()) held.emplace_back(uuid.opaque, name.new_name);
    std::sort(held.begin(), held.end());
    EXPECT_EQ(held, e.entries) << step;
    EXPECT_EQ(names.undo_steps().size(), e.undo) << step;
    EXPECT_EQ(names.redo_steps().size(), e.redo) << step;
    EXPECT_EQ(names.can_undo(), e.undo > 0) << step;
    EXPECT_EQ(names.can_redo(), e.redo > 0) << step;
    EXPECT_EQ(signals, e.signals) << step;
  }
  bool append(const char16_t* text, std::initializer_list<std::uint64_t> ids) {
    const custom_pointer p = insert.settings().text.pointer();
    static_cast<const tx_assisted_input_interface_3*>(p.table)->set_text(p.object, text);
    insert.settings().position.set_selection(1);
    uuid_set set;
    for (const std::uint64_t id : ids) set.insert(test::uuid(id));
    return names.apply_one(insert, set);
  }
};

TEST(NameStore, InsertTwiceThenUndoBackToNoEntry) {
  store s;
  ASSERT_TRUE(s.loaded) << tx_host_project_error();
  s.check({{}, 0, 0, 0}, "start");
  EXPECT_TRUE(s.append(u"X", {2}));
  s.check({{{2, u"RoadsX"}}, 1, 0, 1}, "first apply");
  EXPECT_TRUE(s.append(u"X", {2}));
  s.check({{{2, u"RoadsXX"}}, 2, 0, 2}, "second apply builds on the pending name");
  s.names.undo();
  s.check({{{2, u"RoadsX"}}, 1, 1, 3}, "undo");
  s.names.undo();
  s.check({{}, 0, 2, 4}, "undo erases the entry the step created");
  s.names.undo();
  s.check({{}, 0, 2, 4}, "nothing to undo: no signal");
  s.names.redo();
  s.check({{{2, u"RoadsX"}}, 1, 1, 5}, "redo recreates it");
  EXPECT_EQ(s.names.find(test::uuid(2))->old_name, u"Roads");
}

TEST(NameStore, ANewStepClearsRedoButOneThatChangesNothingKeepsIt) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.append(u"X", {2});
  s.names.undo();
  s.check({{}, 0, 1, 2}, "undone");
  EXPECT_FALSE(s.append(u"X", {99}));  // the host has no element 99: nothing changes
  s.check({{}, 0, 1, 2}, "empty step kept redo");
  EXPECT_TRUE(s.append(u"Y", {3}));
  s.check({{{3, u"RiversY"}}, 1, 0, 3}, "a real step cleared redo");
}

TEST(NameStore, UndoRestoresOnlyWhatTheStepChanged) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.append(u"1", {2});
  s.append(u"2", {2, 3});
  s.check({{{2, u"Roads12"}, {3, u"Rivers2"}}, 2, 0, 2}, "two steps");
  s.names.undo();
  s.check({{{2, u"Roads1"}}, 1, 1, 3}, "entry 3 erased, entry 2 back to its earlier name");
}

TEST(NameStore, AHandEditToTheSameTextIsStillAStep) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.names.set_name(test::uuid(2), u"Main");
  s.names.set_name(test::uuid(2), u"Main");
  s.check({{{2, u"Main"}}, 2, 0, 2}, "two edits");
  s.names.set_name(test::uuid(77), u"Ghost");  // no such element: nothing
  s.check({{{2, u"Main"}}, 2, 0, 2}, "unknown element");
}

TEST(NameStore, TheOldNameIsTheFirstSeenCaption) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.names.set_name(test::uuid(2), u"A");
  tx_entity_set_wcaption(tx_entity_storage_find_by_uid(test::uuid(2)), u"Changed in host");
  s.names.set_name(test::uuid(2), u"B");
  EXPECT_EQ(s.names.find(test::uuid(2))->old_name, u"Roads");
}

TEST(NameStore, RefreshMarksTheLatestStepsElementsOnly) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.append(u"X", {2});
  s.append(u"Y", {3});
  prjrename_tree_item& roads = s.at({0, 0, 0});
  prjrename_tree_item& rivers = s.at({0, 0, 1});
  s.root->refresh(s.names);
  EXPECT_FALSE(roads.changed_last);
  EXPECT_TRUE(rivers.changed_last);
  EXPECT_EQ(roads.new_name, u"RoadsX");
  s.names.undo();
  s.names.undo();
  s.root->refresh(s.names);
  EXPECT_FALSE(roads.changed_last);
  EXPECT_FALSE(roads.has_new_name);
  s.names.redo();
  s.root->refresh(s.names);
  EXPECT_TRUE(roads.changed_last);
  s.names.set_name(test::uuid(2), u"");
  s.root->refresh(s.names);
  EXPECT_TRUE(roads.has_new_name);
  EXPECT_FALSE(roads.is_new_name_valid());
}

TEST(NameStore, TheLatestStepMarkFollowsUndoAndRedoThroughOverlappingSteps) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.append(u"1", {2, 3});
  s.names.set_name(test::uuid(3), u"Hand");
  auto marks = [&] {
    return std::pair{s.names.changed_last(test::uuid(2)), s.names.changed_last(test::uuid(3))};
  };
  EXPECT_EQ(marks(), (std::pair{false, true}));
  s.names.undo();  // back to the step that changed both
  EXPECT_EQ(marks(), (std::pair{true, true}));
  s.names.redo();
  EXPECT_EQ(marks(), (std::pair{false, true}));
  s.names.undo();
  s.names.undo();
  EXPECT_EQ(marks(), (std::pair{false, false}));
}

TEST(NameStore, ListenersMayDisconnectOthersWhileTheSignalRuns) {
  store s;
  ASSERT_TRUE(s.loaded);
  int later = 0;
  events::connection second;
  events::connection first = s.names.changed.connect([&] { second.reset(); });
  second = s.names.changed.connect([&] { ++later; });
  s.names.set_name(test::uuid(2), u"A");
  s.names.set_name(test::uuid(2), u"B");
  EXPECT_EQ(later, 0);
  EXPECT_EQ(s.signals, 2);
}

}  // namespace
}  // namespace tx
