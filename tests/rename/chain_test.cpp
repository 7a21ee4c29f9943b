// The chain: operations applied in order, each on the output of the one before, an operation
// that changes nothing passing the name on, over pointers, owning pointers, reference wrappers
// or the operations themselves, with buffers that carry nothing from one name to the next.
#include "rename/chain.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "plugin_separators.h"
#include "rename/case_change_rule.h"
#include "rename/erase_rule.h"
#include "rename/find_replace_rule.h"
#include "rename/insert_rule.h"

namespace tx::rename {
namespace {

// An operation: one transformation with fixed settings.
struct op {
  std::function<bool(const std::u16string&, std::u16string&)> transform;
  bool apply(const std::u16string& name, std::u16string& result) const {
    return transform(name, result);
  }
};

TEST(Chain, EachOperationWorksOnThePreviousOutputAndAnyChangeCounts) {
  const separator_set& s = testing::plugin_separators();
  const op replace{[&](auto& n, auto& r) { return find_replace(n, {u"road", u"street"}, s, r); }};
  const op lower{[&](auto& n, auto& r) { return change_case(n, case_mode::lower, s, r); }};
  const op upper{[&](auto& n, auto& r) { return change_case(n, case_mode::upper, s, r); }};
  const op first{[&](auto& n, auto& r) { return change_case(n, case_mode::first_letter, s, r); }};
  const op prefix{[](auto& n, auto& r) { return insert_text(n, {u"N_", insert_mode::begin}, r); }};
  const op suffix{[](auto& n, auto& r) { return insert_text(n, {u"_v2", insert_mode::end}, r); }};
  const op cut{[&](auto& n, auto& r) { return erase(n, {erase_kind::extension}, s, r); }};
  const struct {
    const char* name;
    std::vector<const op*> active;
    std::u16string input, expected;
    bool changed;
  } rows[] = {
      // First letter changes nothing here and passes the name on as it got it.
      {"four", {&replace, &first, &suffix, &cut}, u"Main ROAD.tab", u"Main street", true},
      {"insert then lower", {&prefix, &lower}, u"ROADS", u"n_roads", true},
      {"lower then insert", {&lower, &prefix}, u"ROADS", u"N_roads", true},
      {"the last changes nothing", {&lower, &replace}, u"RIVER", u"river", true},
      {"none changes it", {&replace, &lower}, u"river", u"river", false},
      {"no operations", {}, u"Main ROAD", u"Main ROAD", false},
      {"a change undone later still counts", {&upper, &lower}, u"river", u"river", true},
  };
  std::u16string current, scratch;  // reused from row to row, as over a project's names
  for (const auto& row : rows) {
    EXPECT_EQ(run_chain(row.active, row.input, current, scratch), row.changed) << row.name;
    EXPECT_EQ(current, row.expected) << row.name;
    std::vector<std::unique_ptr<op>> owned;
    std::vector<std::reference_wrapper<const op>> references;
    std::vector<op> objects;
    for (const op* each : row.active) {
      owned.push_back(std::make_unique<op>(*each));
      references.emplace_back(*each);
      objects.push_back(*each);
    }
    for (const chain_result& out : {chain(owned, row.input), chain(references, row.input),
                                    chain(std::as_const(objects), row.input)}) {
      EXPECT_EQ(out.name, row.expected) << row.name;
      EXPECT_EQ(out.changed, row.changed) << row.name;
    }
  }
}

}  // namespace
}  // namespace tx::rename
