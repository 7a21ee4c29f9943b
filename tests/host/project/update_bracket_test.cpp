// The recursive update bracket and the record of caption writes, driven through txk_entity as a
// plug-in drives them.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "project_files.h"
#include "tx/host/txk_prj.h"
#include "tx_host/project.h"

// txk_entity's optional exports: the normal library has them (a plug-in looks them up by name).
extern "C" void tx_entity_begin_update_recursive(tx_entity* entity);
extern "C" void tx_entity_end_update_recursive(tx_entity* entity);

namespace tx::host::testing {
namespace {

struct bracket_counts {
  size_t begins, ends, depth, deferred, delivered;
};

void expect_bracket(const bracket_counts& expected, const std::string& step) {
  tx_host_update_bracket state{};
  tx_host_project_update_bracket(&state);
  EXPECT_EQ(state.begins, expected.begins) << step;
  EXPECT_EQ(state.ends, expected.ends) << step;
  EXPECT_EQ(state.depth, expected.depth) << step;
  EXPECT_EQ(state.deferred, expected.deferred) << step;
  EXPECT_EQ(state.delivered, expected.delivered) << step;
}

struct write {
  std::uint64_t uuid;
  std::u16string old_caption, new_caption;
  size_t depth;
  bool operator==(const write&) const = default;
};

std::vector<write> recorded_writes() {
  std::vector<write> writes;
  tx_host_caption_write w{};
  for (size_t i = 0; tx_host_project_caption_write(i, &w); ++i) {
    writes.push_back({w.uuid.opaque, w.old_caption, w.new_caption, w.depth});
  }
  EXPECT_EQ(writes.size(), tx_host_project_caption_write_count());
  return writes;
}

tx_entity* project_entity() { return tx_prj_safe_upcast(tx_prj_get_instance()); }

TEST(UpdateBracket, NestsAndHoldsNotificationsBackUntilTheOutermostEnd) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  const struct {
    std::string step;
    std::function<void()> act;
    bracket_counts after;
  } steps[] = {
      {"loaded", [] {}, {0, 0, 0, 0, 0}},
      {"write outside", [] { tx_entity_set_wcaption(find(0xa01), u"A"); }, {0, 0, 0, 0, 1}},
      {"begin", [] { tx_entity_begin_update_recursive(project_entity()); }, {1, 0, 1, 0, 1}},
      {"write at 1", [] { tx_entity_set_wcaption(find(0xa03), u"B"); }, {1, 0, 1, 1, 1}},
      {"nested begin", [] { tx_entity_begin_update_recursive(find(0xa02)); }, {2, 0, 2, 1, 1}},
      {"write at 2", [] { tx_entity_set_wcaption(find(0xa04), u"C"); }, {2, 0, 2, 2, 1}},
      {"inner end", [] { tx_entity_end_update_recursive(find(0xa02)); }, {2, 1, 1, 2, 1}},
      {"outer end", [] { tx_entity_end_update_recursive(project_entity()); }, {2, 2, 0, 0, 3}},
      {"unmatched end", [] { tx_entity_end_update_recursive(project_entity()); }, {2, 3, 0, 0, 3}},
      {"null begin", [] { tx_entity_begin_update_recursive(nullptr); }, {2, 3, 0, 0, 3}},
  };
  for (const auto& step : steps) {
    step.act();
    expect_bracket(step.after, step.step);
  }
  tx_host_update_bracket state{};
  tx_host_project_update_bracket(&state);
  EXPECT_EQ(state.last_begin, find(0xa02));
}

TEST(CaptionWrites, RecordOldAndNewCaptionsWithTheDepthOfTheBracket) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_entity* const project = project_entity();
  tx_entity_set_wcaption(find(0xc01), u"Лист А");
  tx_entity_set_wcaption(find(0xa01), nullptr);  // a null caption changes nothing
  tx_entity_begin_update_recursive(project);
  tx_entity_set_wcaption(find(0xa01), u"Карта города");
  tx_entity_begin_update_recursive(project);
  tx_entity_set_wcaption(find(0xa03), u"Шоссе");  // the same caption is written all the same
  tx_entity_end_update_recursive(project);
  tx_entity_set_wcaption(find(0xa01), u"Карта");
  tx_entity_set_wcaption(project, u"Проект");
  tx_entity_end_update_recursive(project);

  const std::vector<write> expected = {
      {0xc01, u"Лист 1", u"Лист А", 0},   {0xa01, u"Карта", u"Карта города", 1},
      {0xa03, u"Шоссе", u"Шоссе", 2},     {0xa01, u"Карта города", u"Карта", 1},
      {0, u"Малый проект", u"Проект", 1},
  };
  EXPECT_EQ(recorded_writes(), expected);
  EXPECT_EQ(caption(find(0xa01)), u"Карта");
  EXPECT_EQ(caption(find(0xc01)), u"Лист А");
  tx_host_caption_write past_end{};
  EXPECT_FALSE(tx_host_project_caption_write(expected.size(), &past_end));
  EXPECT_FALSE(tx_host_project_caption_write(0, nullptr));

  // The recorded text stays valid as more is recorded.
  tx_host_caption_write first{};
  ASSERT_TRUE(tx_host_project_caption_write(0, &first));
  for (int i = 0; i < 200; ++i) tx_entity_set_wcaption(find(0xa05), u"ещё");
  EXPECT_EQ(std::u16string(first.old_caption), u"Лист 1");
  EXPECT_EQ(std::u16string(first.new_caption), u"Лист А");
}

TEST(CaptionWrites, ClearingForgetsRecordsButNotOpenBracketsAndLoadingForgetsBoth) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_entity_begin_update_recursive(project_entity());
  tx_entity_set_wcaption(find(0xa01), u"A");
  tx_host_project_clear_records();
  EXPECT_TRUE(recorded_writes().empty());
  expect_bracket({0, 0, 1, 1, 0}, "cleared inside a bracket");
  tx_entity_end_update_recursive(project_entity());
  expect_bracket({0, 1, 0, 0, 1}, "closed after clearing");

  tx_entity_begin_update_recursive(project_entity());
  tx_entity_set_wcaption(find(0xa01), u"B");
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  EXPECT_TRUE(recorded_writes().empty());
  expect_bracket({0, 0, 0, 0, 0}, "reloaded inside a bracket");
  EXPECT_EQ(caption(find(0xa01)), u"Карта");
}

}  // namespace
}  // namespace tx::host::testing
