// The name store's rules that the model-checked history test does not reach: the old name is
// the first caption seen, an element collected twice is one change, entries keep their order,
// the tree's marks follow the store, names stay valid, and listeners may disconnect others.
#include "tree/names.h"

#include <tuple>

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
    for (const prjrename_name& entry : names.entries()) {
      held.emplace_back(entry.uuid.opaque, entry.new_name.view());
    }
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
    for (const std::uint64_t id : ids) set.push_back(test::uuid(id));
    return names.apply_one(insert, set);
  }
};

TEST(NameStore, TheOldNameIsTheFirstSeenCaption) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.names.set_name(test::uuid(2), u"A");
  tx_entity_set_wcaption(tx_entity_storage_find_by_uid(test::uuid(2)), u"Changed in host");
  s.names.set_name(test::uuid(2), u"B");
  EXPECT_EQ(s.names.find(test::uuid(2))->old_name.view(), u"Roads");
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
  EXPECT_EQ(roads.new_name.view(), u"RoadsX");
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

TEST(NameStore, EachElementOnceAStepEvenWhenCollectedTwice) {
  store s;
  ASSERT_TRUE(s.loaded);
  EXPECT_TRUE(s.append(u"X", {2, 3, 2}));
  s.check({{{2, u"RoadsX"}, {3, u"RiversX"}}, 1, 0, 1}, "new entries");
  EXPECT_TRUE(s.append(u"Y", {3, 3}));
  s.check({{{2, u"RoadsX"}, {3, u"RiversXY"}}, 2, 0, 2}, "an existing entry");
  EXPECT_EQ(s.names.undo_steps()[0]->changes.size(), 2u);
  EXPECT_EQ(s.names.undo_steps()[1]->changes.size(), 1u);
}

TEST(NameStore, EntriesKeepTheirOrderAndRedoRecreatesThemFromTheStep) {
  store s;
  ASSERT_TRUE(s.loaded);
  // uuid, old name, new name, in the store's order.
  using listing = std::vector<std::tuple<std::uint64_t, std::u16string, std::u16string>>;
  auto entries = [&] {
    listing list;
    for (const prjrename_name& e : s.names.entries()) {
      list.emplace_back(e.uuid.opaque, e.old_name.view(), e.new_name.view());
    }
    return list;
  };
  s.names.set_name(test::uuid(3), u"Streams");
  s.append(u"X", {2, 1});
  const listing all{{3, u"Rivers", u"Streams"}, {2, u"Roads", u"RoadsX"}, {1, u"Map", u"MapX"}};
  EXPECT_EQ(entries(), all);
  s.names.undo();
  EXPECT_EQ(entries(), (listing{{3, u"Rivers", u"Streams"}}));
  tx_entity_set_wcaption(tx_entity_storage_find_by_uid(test::uuid(2)), u"Changed in host");
  s.names.redo();
  EXPECT_EQ(entries(), all);  // the old name is the step's, not the host's caption now
  s.names.undo();
  s.names.undo();
  s.names.redo();
  s.append(u"Y", {1});
  EXPECT_EQ(entries(), (listing{{3, u"Rivers", u"Streams"}, {1, u"Map", u"MapY"}}));
  EXPECT_FALSE(s.names.can_redo());
}

TEST(NameStore, NamesStayValidThroughManyStepsAndTheirUndo) {
  store s;
  ASSERT_TRUE(s.loaded);
  prjrename_tree_item& roads = s.at({0, 0, 0});
  s.names.set_name(test::uuid(2), u"First");
  s.root->refresh(s.names);
  constexpr int steps = 3000;  // about 120k code units of text: many chunks
  auto text = [](int i) { return std::u16string(40, static_cast<char16_t>(u'a' + i % 26)); };
  for (int i = 0; i < steps; ++i) s.names.set_name(test::uuid(3), text(i));
  std::u16string shown;
  roads.get_new_name([&](const char16_t* t) { shown = t; });
  EXPECT_EQ(shown, u"First");  // the node still reads the text it was given
  EXPECT_EQ(s.names.find(test::uuid(3))->new_name.view(), text(steps - 1));
  for (int i = 0; i < steps; ++i) s.names.undo();
  EXPECT_EQ(s.names.find(test::uuid(3)), nullptr);
  EXPECT_EQ(s.names.undo_steps().back()->changes[0].after.view(), u"First");
  for (int i = 0; i < steps; ++i) s.names.redo();
  EXPECT_EQ(s.names.find(test::uuid(3))->new_name.view(), text(steps - 1));
  EXPECT_EQ(s.names.find(test::uuid(3))->old_name.view(), u"Rivers");
  const prjrename_change& middle = s.names.undo_steps()[steps / 2]->changes[0];
  EXPECT_EQ(middle.before.view(), text(steps / 2 - 2));
  EXPECT_EQ(middle.after.view(), text(steps / 2 - 1));
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
