// The name store's rules that the model-checked history test does not reach: the old name is
// the first caption seen, an element collected twice is one change, entries keep their order
// while the host's captions change under them. (The tree's marks following the store are driven
// end to end; names staying valid through the arena's growth: name_index_test and the model;
// listeners ending others' subscriptions: the toolkit's event test.)
#include "tree/names.h"

#include <tuple>

#include "project_fixture.h"
#include "rename/insert.h"

namespace tx {
namespace {

// Entries as uuid, old name and new name, in the store's order.
using listing = std::vector<std::tuple<std::uint64_t, std::u16string, std::u16string>>;

struct store : test::project_fixture {
  prjrename_names names;
  prjrename_insert insert;

  store()
      : project_fixture(
            test::map_project({test::layer("2", "Roads"), test::layer("3", "Rivers")})) {}

  listing entries() const {
    listing list;
    for (const prjrename_name& e : names.entries()) {
      list.emplace_back(e.uuid.opaque, e.old_name.view(), e.new_name.view());
    }
    return list;
  }
  // Appends `text` to the elements `ids`, collected in that order, as one step.
  bool append(const char16_t* text, std::initializer_list<std::uint64_t> ids) {
    insert.settings().text.assign_text(text);
    insert.settings().position.set_selection(1);
    uuid_set set;
    for (const std::uint64_t id : ids) set.push_back(test::uuid(id));
    return names.apply_one(insert, set);
  }
  static void rename_in_host(std::uint64_t id) {
    tx_entity_set_wcaption(tx_entity_storage_find_by_uid(test::uuid(id)), u"Changed in host");
  }
};

TEST(NameStore, TheOldNameIsTheFirstSeenCaption) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.names.set_name(test::uuid(2), u"A");
  store::rename_in_host(2);
  s.names.set_name(test::uuid(2), u"B");
  EXPECT_EQ(s.entries(), (listing{{2, u"Roads", u"B"}}));
}

TEST(NameStore, EachElementOnceAStepEvenWhenCollectedTwice) {
  store s;
  ASSERT_TRUE(s.loaded);
  EXPECT_TRUE(s.append(u"X", {2, 3, 2}));
  EXPECT_EQ(s.entries(), (listing{{2, u"Roads", u"RoadsX"}, {3, u"Rivers", u"RiversX"}}));
  EXPECT_TRUE(s.append(u"Y", {3, 3}));
  EXPECT_EQ(s.entries(), (listing{{2, u"Roads", u"RoadsX"}, {3, u"Rivers", u"RiversXY"}}));
  ASSERT_EQ(s.names.undo_steps().size(), 2u);
  EXPECT_EQ(s.names.undo_steps()[0]->changes.size(), 2u);
  EXPECT_EQ(s.names.undo_steps()[1]->changes.size(), 1u);
}

TEST(NameStore, EntriesKeepTheirOrderAndRedoRecreatesThemFromTheStep) {
  store s;
  ASSERT_TRUE(s.loaded);
  s.names.set_name(test::uuid(3), u"Streams");
  s.append(u"X", {2, 1});
  const listing all{{3, u"Rivers", u"Streams"}, {2, u"Roads", u"RoadsX"}, {1, u"Map", u"MapX"}};
  EXPECT_EQ(s.entries(), all);
  s.names.undo();
  EXPECT_EQ(s.entries(), (listing{{3, u"Rivers", u"Streams"}}));
  store::rename_in_host(2);
  s.names.redo();
  EXPECT_EQ(s.entries(), all);  // the old name is the step's, not the host's caption now
  s.names.undo();
  s.names.undo();
  s.names.redo();
  s.append(u"Y", {1});
  EXPECT_EQ(s.entries(), (listing{{3, u"Rivers", u"Streams"}, {1, u"Map", u"MapY"}}));
  EXPECT_FALSE(s.names.can_redo());
}

}  // namespace
}  // namespace tx
