// The name store against a deliberately simple model of its rules, over long random sequences
// of applied operations (on random sets of elements, some of which the host no longer has), hand
// edits, undo and redo. After every step each entry, both stacks, the latest-step marks and the
// number of signals must agree with the model. The sequence is fixed by the number it starts from,
// printed on a failure so that it can be replayed.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "project_fixture.h"
#include "tree/names.h"

namespace tx::test {
namespace {

// What the model keeps: plain maps and vectors, one obvious rule per operation.
struct model_change {
  std::uint64_t uuid;
  std::u16string before, after;
  bool inserted;
};
using model_step = std::vector<model_change>;

struct history_model {
  std::map<std::uint64_t, std::u16string> captions;                            // what the host has
  std::map<std::uint64_t, std::pair<std::u16string, std::u16string>> entries;  // old, new
  std::vector<model_step> undo, redo;
  int signals = 0;

  template <class Rename>
  void apply(const std::vector<std::uint64_t>& elements, Rename rename) {
    model_step step;
    for (const std::uint64_t uuid : elements) {
      const auto entry = entries.find(uuid);
      std::u16string result;
      if (entry != entries.end()) {
        if (!rename(entry->second.second, result)) continue;
        step.push_back({uuid, entry->second.second, result, false});
        entry->second.second = result;
      } else if (const auto caption = captions.find(uuid); caption != captions.end()) {
        if (!rename(caption->second, result)) continue;
        step.push_back({uuid, caption->second, result, true});
        entries[uuid] = {caption->second, result};
      }
    }
    if (step.empty()) return;
    push(std::move(step));
  }
  // A typed name is a step of its own even when it equals the name before.
  void set_name(std::uint64_t uuid, const std::u16string& text) {
    apply({uuid}, [&](const std::u16string&, std::u16string& result) {
      result = text;
      return true;
    });
  }
  void push(model_step step) {
    undo.push_back(std::move(step));
    redo.clear();
    ++signals;
  }
  void undo_one() {
    if (undo.empty()) return;
    for (auto c = undo.back().rbegin(); c != undo.back().rend(); ++c) {
      if (c->inserted) {
        entries.erase(c->uuid);
      } else {
        entries[c->uuid].second = c->before;
      }
    }
    redo.push_back(std::move(undo.back()));
    undo.pop_back();
    ++signals;
  }
  void redo_one() {
    if (redo.empty()) return;
    for (const model_change& c : redo.back()) {
      entries.try_emplace(c.uuid, c.before, c.after).first->second.second = c.after;
    }
    undo.push_back(std::move(redo.back()));
    redo.pop_back();
    ++signals;
  }
  bool changed_last(std::uint64_t uuid) const {
    if (undo.empty() || !entries.count(uuid)) return false;
    for (const model_change& c : undo.back()) {
      if (c.uuid == uuid) return true;
    }
    return false;
  }
};

// A rename rule the test controls: it may append, blank, rewrite to a fixed text (reporting a
// change even when the text comes out the same), or change nothing.
enum class rule { append, blank, rewrite, nothing };

bool run_rule(rule r, const std::u16string& name, std::u16string& result) {
  switch (r) {
    case rule::append:
      result = name + u"_1";
      return true;
    case rule::blank:
      result.clear();
      return !name.empty();
    case rule::rewrite:
      result = u"Слой";
      return true;
    case rule::nothing:
      result = name;
      return false;
  }
  return false;
}

class rule_operation final : public prjrename_operation {
 public:
  rule_operation() : prjrename_operation(150) {}
  custom_pointer element() override { return {}; }
  bool apply(const std::u16string& name, std::u16string& result) override {
    return run_rule(current, name, result);
  }
  bool is_idle() override { return current == rule::nothing; }
  rule current = rule::nothing;
};

constexpr int layer_count = 24;
constexpr std::uint64_t first_layer = 0x100;
// Uuids the host never had, asked for all the same.
constexpr std::uint64_t strangers[] = {0xdead, 0xbeef};

std::u16string digits(std::uint64_t n) {
  std::u16string text;
  for (const char c : std::to_string(n)) text += static_cast<char16_t>(c);
  return text;
}

// One scene of `layer_count` layers, "Слой 0" …, uuids from `first_layer` on.
std::string layered_project() {
  std::vector<std::string> layers;
  for (int i = 0; i < layer_count; ++i) {
    char uuid[32];
    std::snprintf(uuid, sizeof uuid, "%016llx",
                  static_cast<unsigned long long>(first_layer + static_cast<unsigned>(i)));
    layers.push_back(layer(uuid, ("Слой " + std::to_string(i)).c_str()));
  }
  return project_json(R"("scenes_2d": )" +
                      collection("S", {scene("00000000000000aa", "Сцена", layers)}));
}

TEST(HistoryModel, LongRandomSequencesAgreeWithTheModel) {
  const std::uint32_t origin = 20261122;
  SCOPED_TRACE("random sequence " + std::to_string(origin));
  project_fixture project(layered_project());
  ASSERT_TRUE(project.loaded);

  history_model model;
  std::vector<std::uint64_t> universe{0xaa};
  for (int i = 0; i < layer_count; ++i) universe.push_back(first_layer + static_cast<unsigned>(i));
  for (const std::uint64_t uuid : universe) {
    model.captions[uuid] = uuid == 0xaa ? u"Сцена" : u"Слой " + digits(uuid - first_layer);
  }
  universe.insert(universe.end(), std::begin(strangers), std::end(strangers));

  prjrename_names names;
  int signals = 0;
  const auto connection = names.changed.connect([&] { ++signals; });
  rule_operation first, second;
  std::mt19937 random(origin);
  const auto below = [&](unsigned n) { return static_cast<unsigned>(random() % n); };
  const std::u16string typed[] = {u"", u"Дороги", u"Слой 1", u"x"};

  constexpr int steps = 100000;
  for (int step = 0; step < steps; ++step) {
    const unsigned what = below(100);
    if (what < 40) {
      std::vector<std::uint64_t> chosen;
      uuid_set elements;
      for (const std::uint64_t uuid : universe) {
        if (below(4) == 0) {
          chosen.push_back(uuid);
          elements.push_back(tx_uuid{uuid});
        }
      }
      first.current = static_cast<rule>(below(4));
      second.current = static_cast<rule>(below(4));
      if (what < 20) {
        names.apply_one(first, elements);
        model.apply(chosen, [&](const std::u16string& n, std::u16string& r) {
          return run_rule(first.current, n, r);
        });
      } else {
        prjrename_operation* chain[] = {&first, &second};
        names.apply_chain(chain, elements);
        model.apply(chosen, [&](const std::u16string& n, std::u16string& r) {
          std::u16string middle;
          const bool a = run_rule(first.current, n, middle);
          if (!a) middle = n;
          const bool b = run_rule(second.current, middle, r);
          if (!b) r = middle;
          return a || b;
        });
      }
    } else if (what < 55) {
      const std::uint64_t uuid = universe[below(static_cast<unsigned>(universe.size()))];
      const std::u16string& text = typed[below(4)];
      names.set_name(tx_uuid{uuid}, text);
      model.set_name(uuid, text);
    } else if (what < 75) {
      names.undo();
      model.undo_one();
    } else if (what < 95) {
      names.redo();
      model.redo_one();
    } else if (what < 96 && model.captions.size() > 10) {
      // Another part of the host removes an element: new entries for it are no longer made.
      const std::uint64_t uuid = first_layer + below(layer_count);
      if (tx_host_project_remove(tx_uuid{uuid})) model.captions.erase(uuid);
    }

    ASSERT_EQ(signals, model.signals) << "step " << step;
    ASSERT_EQ(names.undo_steps().size(), model.undo.size()) << "step " << step;
    ASSERT_EQ(names.redo_steps().size(), model.redo.size()) << "step " << step;
    ASSERT_EQ(names.can_undo(), !model.undo.empty());
    ASSERT_EQ(names.can_redo(), !model.redo.empty());
    ASSERT_EQ(names.size(), model.entries.size()) << "step " << step;
    for (const std::uint64_t uuid : universe) {
      const prjrename_name* entry = names.find(tx_uuid{uuid});
      const auto expected = model.entries.find(uuid);
      ASSERT_EQ(entry != nullptr, expected != model.entries.end())
          << "step " << step << ", uuid " << uuid;
      if (entry != nullptr) {
        ASSERT_EQ(entry->old_name.view(), expected->second.first) << "step " << step;
        ASSERT_EQ(entry->new_name.view(), expected->second.second) << "step " << step;
      }
      ASSERT_EQ(names.changed_last(tx_uuid{uuid}), model.changed_last(uuid))
          << "step " << step << ", uuid " << uuid;
    }
  }
}

}  // namespace
}  // namespace tx::test
