#include "rename_benchmarks.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string_view>

#include "heap_counter.h"
#include "layer_names.h"
#include "platform/platform.h"
#include "rename/case_change_rule.h"
#include "rename/chain.h"
#include "rename/erase_rule.h"
#include "rename/find_replace_rule.h"
#include "rename/insert_rule.h"

namespace tx::bench {
namespace {

using namespace tx::rename;

// The separator set as the operations build it, from the plug-in's string 128.
const separator_set& separators() {
  static const separator_set set = [] {
    std::u16string_view stored = platform::stored_string(platform::own_module(), 128);
    if (!stored.empty() && stored.back() == u'\0') stored.remove_suffix(1);
    return separator_set(stored);
  }();
  return set;
}

const find_replace_settings road_to_street{u"road", u"street", false, true, replace_mode::all};
const insert_settings suffix{u"_v2", insert_mode::end};
const erase_settings extension{erase_kind::extension};
const erase_settings after_underscore{erase_kind::everything_after, 0, erase_side::begin, u"_"};

// An operation as the dialog applies it: through a base pointer, settings fixed.
class operation {
 public:
  virtual ~operation() = default;
  virtual bool apply(const std::u16string& name, std::u16string& result) = 0;
};

template <class Transform>
class fixed_operation final : public operation {
 public:
  explicit fixed_operation(Transform transform) : transform_(transform) {}
  bool apply(const std::u16string& name, std::u16string& result) override {
    return transform_(name, result);
  }

 private:
  Transform transform_;
};

template <class Transform>
std::unique_ptr<operation> make_operation(Transform transform) {
  return std::make_unique<fixed_operation<Transform>>(transform);
}

bool replace_road(const std::u16string& name, std::u16string& result) {
  return find_replace(name, road_to_street, separators(), result);
}
bool lower_case(const std::u16string& name, std::u16string& result) {
  return change_case(name, case_mode::lower, separators(), result);
}
bool first_letter(const std::u16string& name, std::u16string& result) {
  return change_case(name, case_mode::first_letter, separators(), result);
}
bool insert_at_end(const std::u16string& name, std::u16string& result) {
  return insert_text(name, suffix, result);
}
bool erase_extension(const std::u16string& name, std::u16string& result) {
  return erase(name, extension, separators(), result);
}
bool erase_after_underscore(const std::u16string& name, std::u16string& result) {
  return erase(name, after_underscore, separators(), result);
}

// Runs `transform(name, result)` over the names, one name per iteration, and reports names/s,
// the share of names changed and the heap allocations made per unchanged and per changed name.
template <class Transform>
void over_names(benchmark::State& state, Transform transform) {
  const std::vector<std::u16string>& names = layer_names();
  std::u16string result;
  result.reserve(256);
  std::size_t next = 0;
  std::size_t changed = 0, unchanged_allocations = 0, changed_allocations = 0;
  for (auto _ : state) {
    const std::size_t before = allocation_count();
    const bool was_changed = transform(names[next], result);
    const std::size_t made = allocation_count() - before;
    benchmark::DoNotOptimize(result.data());
    if (was_changed) {
      ++changed;
      changed_allocations += made;
    } else {
      unchanged_allocations += made;
    }
    if (++next == names.size()) next = 0;
  }
  const auto iterations = static_cast<double>(state.iterations());
  const auto changed_count = static_cast<double>(changed);
  state.SetItemsProcessed(state.iterations());
  state.counters["changed_%"] = 100 * changed_count / iterations;
  state.counters["allocs/unchanged"] =
      iterations > changed_count
          ? static_cast<double>(unchanged_allocations) / (iterations - changed_count)
          : 0;
  state.counters["allocs/changed"] =
      changed > 0 ? static_cast<double>(changed_allocations) / changed_count : 0;
}

void chain_of_four(benchmark::State& state) {
  std::vector<std::unique_ptr<operation>> active;
  active.push_back(make_operation(&replace_road));
  active.push_back(make_operation(&lower_case));
  active.push_back(make_operation(&insert_at_end));
  active.push_back(make_operation(&erase_extension));
  std::u16string current, scratch;
  current.reserve(256);
  scratch.reserve(256);
  over_names(state, [&](const std::u16string& name, std::u16string&) {
    const bool changed = run_chain(active, name, current, scratch);
    benchmark::DoNotOptimize(current.data());
    return changed;
  });
}

}  // namespace

std::vector<benchmark_goal> register_rename_benchmarks() {
  // Names, separators and case tables are made before any timing starts.
  std::u16string warm;
  lower_case(layer_names().front(), warm);
  const auto single = [](const char* name,
                         bool (*transform)(const std::u16string&, std::u16string&)) {
    benchmark::RegisterBenchmark(
        name, [transform](benchmark::State& state) { over_names(state, transform); });
  };
  single("find_replace", &replace_road);
  single("lower_case", &lower_case);
  single("first_letter", &first_letter);
  single("insert_end", &insert_at_end);
  single("erase_extension", &erase_extension);
  single("erase_after_underscore", &erase_after_underscore);
  benchmark::RegisterBenchmark("chain_of_four", &chain_of_four);
  return {{"find_replace", 5e6},   {"lower_case"},      {"first_letter"},
          {"insert_end"},          {"erase_extension"}, {"erase_after_underscore"},
          {"chain_of_four", 1.5e6}};
}

}  // namespace tx::bench
