// The commit: validation before any write or progress, then every entry written in one update
// bracket with progress, deleted elements skipped. (The execute step's warnings and its effect
// on the operations are driven end to end.)
#include "tree/commit.h"

#include "project_fixture.h"

namespace tx {
namespace {

using test::collection;
using test::layer;
using test::project_json;
using test::scene;

struct dialog_state : test::project_fixture {
  prjrename_names names;

  dialog_state()
      : project_fixture(project_json(
            R"("scenes_2d": )" + collection("S2", {scene("1", "Map",
                                                         {layer("2", "Roads"), layer("3", "Rivers"),
                                                          layer("4", "Lakes")})}))) {
    tx_host_set_lng(0);
  }
  std::vector<std::pair<std::uint64_t, std::u16string>> writes() const {
    std::vector<std::pair<std::uint64_t, std::u16string>> list;
    for (std::size_t i = 0; i < tx_host_project_caption_write_count(); ++i) {
      tx_host_caption_write w{};
      tx_host_project_caption_write(i, &w);
      list.emplace_back(w.uuid.opaque, w.new_caption);
    }
    std::sort(list.begin(), list.end());
    return list;
  }
};

TEST(Commit, NoEntriesWarnsAndTouchesNothing) {
  dialog_state d;
  ASSERT_TRUE(d.loaded);
  EXPECT_FALSE(commit_names(d.names, tx_prj_get_instance()));
  EXPECT_EQ(test::warnings(), std::vector<std::u16string>{u"Не заданы новые имена"});
  EXPECT_EQ(tx_host_msgs_progress_created(), 0u);
  EXPECT_EQ(tx_host_project_caption_write_count(), 0u);
}

TEST(Commit, AnEmptyNameAnywhereWritesNothing) {
  dialog_state d;
  ASSERT_TRUE(d.loaded);
  d.names.set_name(test::uuid(2), u"Streets");
  d.names.set_name(test::uuid(3), u"");
  d.names.set_name(test::uuid(4), u"Ponds");
  tx_host_set_lng(50000);
  EXPECT_FALSE(commit_names(d.names, tx_prj_get_instance()));
  tx_host_set_lng(0);
  EXPECT_EQ(test::warnings(),
            std::vector<std::u16string>{
                u"An empty name was specified for renaming. Check the element tree"});
  EXPECT_EQ(tx_host_project_caption_write_count(), 0u);
  EXPECT_EQ(tx_host_msgs_progress_created(), 0u);
}

TEST(Commit, WritesEveryEntryInOneBracketWithProgressAndSkipsDeletedOnes) {
  dialog_state d;
  ASSERT_TRUE(d.loaded);
  d.names.set_name(test::uuid(2), u"Streets");
  d.names.set_name(test::uuid(3), u"Rivers");  // equal to the caption: still written
  d.names.set_name(test::uuid(4), u"Ponds");
  ASSERT_TRUE(tx_host_project_remove(test::uuid(4)));
  EXPECT_TRUE(commit_names(d.names, tx_prj_get_instance()));
  EXPECT_EQ(d.writes(), (std::vector<std::pair<std::uint64_t, std::u16string>>{{2, u"Streets"},
                                                                               {3, u"Rivers"}}));
  std::vector<double> reports;
  for (std::size_t i = 0; i < tx_host_msgs_progress_report_count(); ++i) {
    reports.push_back(tx_host_msgs_progress_report(i));
  }
  EXPECT_EQ(reports, (std::vector<double>{1.0 / 3, 2.0 / 3, 1.0}));
  EXPECT_EQ(tx_host_msgs_progress_destroyed(), 1u);
  tx_host_update_bracket bracket{};
  tx_host_project_update_bracket(&bracket);
  EXPECT_EQ(bracket.begins, 1u);
  EXPECT_EQ(bracket.ends, 1u);
  EXPECT_EQ(bracket.depth, 0u);
  for (std::size_t i = 0; i < tx_host_project_caption_write_count(); ++i) {
    tx_host_caption_write w{};
    tx_host_project_caption_write(i, &w);
    EXPECT_EQ(w.depth, 1u);
  }
  EXPECT_EQ(d.names.size(), 3u);  // the store is left as it is
}

}  // namespace
}  // namespace tx
