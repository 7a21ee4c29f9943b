// The commit: validation before any write or progress, then every entry written in one update
// bracket with progress, deleted elements skipped. (Accepting with no new names, the execute
// step's warnings and its effect on the operations are driven end to end.)
#include "tree/commit.h"

#include <tuple>

#include "project_fixture.h"

namespace tx {
namespace {

using test::layer;

struct dialog_state : test::project_fixture {
  prjrename_names names;

  dialog_state()
      : project_fixture(
            test::map_project({layer("2", "Roads"), layer("3", "Rivers"), layer("4", "Lakes")})) {
    tx_host_set_lng(0);
  }
  // The captions written, in order, with the number of update brackets open at each write.
  static std::vector<std::tuple<std::uint64_t, std::u16string, std::size_t>> writes() {
    std::vector<std::tuple<std::uint64_t, std::u16string, std::size_t>> list;
    tx_host_caption_write w{};
    for (std::size_t i = 0; tx_host_project_caption_write(i, &w); ++i) {
      list.emplace_back(w.uuid.opaque, w.new_caption, w.depth);
    }
    return list;
  }
};

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
  EXPECT_EQ(d.writes(), (decltype(d.writes()){{2, u"Streets", 1}, {3, u"Rivers", 1}}));
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
}

}  // namespace
}  // namespace tx
