#include "rename_measures.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "heap_counter.h"
#include "layer_names.h"
#include "platform/platform.h"
#include "rename/case_change_rule.h"
#include "rename/chain.h"
#include "rename/erase_rule.h"
#include "rename/find_replace_rule.h"
#include "rename/insert_rule.h"
#include "run_timer.h"

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

using transform = bool (*)(const std::u16string&, std::u16string&);

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

// An operation as the dialog applies it in a chain: through a base pointer, settings fixed.
class operation {
 public:
  virtual ~operation() = default;
  virtual bool apply(const std::u16string& name, std::u16string& result) = 0;
};

class fixed_operation final : public operation {
 public:
  explicit fixed_operation(transform step) : step_(step) {}
  bool apply(const std::u16string& name, std::u16string& result) override {
    return step_(name, result);
  }

 private:
  transform step_;
};

// The chain of four: find and replace, lower case, insert at the end, erase the extension.
class chain_of_four {
 public:
  chain_of_four() {
    for (const transform step : {&replace_road, &lower_case, &insert_at_end, &erase_extension}) {
      active_.push_back(std::make_unique<fixed_operation>(step));
    }
    scratch_.reserve(256);
  }
  bool operator()(const std::u16string& name, std::u16string& result) {
    return run_chain(active_, name, result, scratch_);
  }

 private:
  std::vector<std::unique_ptr<operation>> active_;
  std::u16string scratch_;
};

struct pass_counts {
  std::size_t changed = 0;
  std::size_t unchanged_allocations = 0;
  std::size_t changed_allocations = 0;
};

// One pass of `apply` over every name. The allocations of each call are counted apart for
// names it changed and names it left alone: an unchanged name should cost none.
template <class Apply>
pass_counts one_pass(const std::vector<std::u16string>& names, Apply& apply,
                     std::u16string& result) {
  pass_counts counts;
  for (const std::u16string& name : names) {
    const std::size_t before = allocation_count();
    const bool changed = apply(name, result);
    const std::size_t made = allocation_count() - before;
    if (changed) {
      ++counts.changed;
      counts.changed_allocations += made;
    } else {
      counts.unchanged_allocations += made;
    }
  }
  return counts;
}

template <class Apply>
void measure(const char* key, Apply apply, scale_results& results) {
  const std::vector<std::u16string>& names = layer_names();
  std::u16string result;
  result.reserve(256);
  run_timer timer;
  pass_counts counts;
  for (std::size_t run = 0; run < rename_runs; ++run) {
    timer.time([&] { counts = one_pass(names, apply, result); });
  }
  const auto all = static_cast<double>(names.size());
  const auto changed = static_cast<double>(counts.changed);
  results.set(rename_key(key, "names_per_second"), all / timer.median_seconds());
  results.set(rename_key(key, "changed_percent"), 100 * changed / all);
  results.set(
      rename_key(key, "allocations_unchanged"),
      all > changed ? static_cast<double>(counts.unchanged_allocations) / (all - changed) : 0);
  results.set(rename_key(key, "allocations_changed"),
              changed > 0 ? static_cast<double>(counts.changed_allocations) / changed : 0);
}

}  // namespace

void measure_renames(scale_results& results) {
  // Names, separators and case tables are made before any timing starts.
  std::u16string warm;
  lower_case(layer_names().front(), warm);
  constexpr transform singles[] = {&replace_road,  &lower_case,      &first_letter,
                                   &insert_at_end, &erase_extension, &erase_after_underscore};
  static_assert(std::size(singles) + 1 == std::size(rename_operations));
  for (std::size_t i = 0; i < std::size(singles); ++i) {
    measure(rename_operations[i].key, singles[i], results);
  }
  chain_of_four chain;
  measure(rename_operations[std::size(singles)].key, std::ref(chain), results);
}

}  // namespace tx::bench
