// Every rename transformation, and the chain of all four, on names and settings decoded from
// the input. Besides what the sanitizers catch (a read past the end of a name, say), each rule's
// promises are checked here: a false answer leaves the name as it was and a true one changes
// it; a case change keeps the length; an erase keeps a prefix or a suffix of the name; an
// insertion adds exactly its text at its end of the name; the chain equals its operations run
// one after another.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "rename/case_change_rule.h"
#include "rename/chain.h"
#include "rename/erase_rule.h"
#include "rename/find_replace_rule.h"
#include "rename/insert_rule.h"

namespace {

using namespace tx::rename;

void require(bool holds) {
  if (!holds) std::abort();
}

std::u16string take_text(FuzzedDataProvider& input, std::size_t most) {
  const std::size_t units = input.ConsumeIntegralInRange<std::size_t>(0, most);
  std::u16string text;
  for (std::size_t i = 0; i < units && input.remaining_bytes() >= 2; ++i) {
    text.push_back(input.ConsumeIntegral<char16_t>());
  }
  return text;
}

// Values in and a little beyond each drop-down's range: the rules must ignore strangers.
template <class E>
E take_mode(FuzzedDataProvider& input, int last) {
  return static_cast<E>(input.ConsumeIntegralInRange<std::int32_t>(-2, last + 2));
}

// The answer agrees with the text: false keeps the name, true changes it.
void check_answer(std::u16string_view name, bool changed, const std::u16string& result) {
  require(changed == (result != name));
}

bool is_prefix(std::u16string_view part, std::u16string_view whole) {
  return whole.substr(0, part.size()) == part;
}
bool is_suffix(std::u16string_view part, std::u16string_view whole) {
  return part.size() <= whole.size() && whole.substr(whole.size() - part.size()) == part;
}

// One operation as the chain sees it: settings fixed, applied to any name.
struct fuzz_operation {
  int kind = 0;
  find_replace_settings replace;
  case_mode letters = case_mode::unchanged;
  insert_settings insertion;
  erase_settings erasure;
  const separator_set* separators = nullptr;

  bool apply(const std::u16string& name, std::u16string& result) const {
    switch (kind) {
      case 0:
        return find_replace(name, replace, *separators, result);
      case 1:
        return change_case(name, letters, *separators, result);
      case 2:
        return insert_text(name, insertion, result);
      default:
        return erase(name, erasure, *separators, result);
    }
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const std::u16string separator_text = take_text(input, 8);
  const separator_set separators(separator_text);
  const std::u16string search = take_text(input, 12);
  const std::u16string replacement = take_text(input, 12);
  const std::u16string insertion = take_text(input, 12);
  const std::u16string characters = take_text(input, 6);

  std::vector<fuzz_operation> operations(4);
  for (int kind = 0; kind < 4; ++kind) {
    fuzz_operation& op = operations[static_cast<std::size_t>(kind)];
    op.kind = kind;
    op.separators = &separators;
  }
  operations[0].replace = {search, replacement, input.ConsumeBool(), input.ConsumeBool(),
                           take_mode<replace_mode>(input, 4)};
  operations[1].letters = take_mode<case_mode>(input, 3);
  operations[2].insertion = {insertion, take_mode<insert_mode>(input, 1)};
  erase_settings& e = operations[3].erasure;
  e.kind = take_mode<erase_kind>(input, 4);
  e.count = input.ConsumeIntegralInRange<std::int32_t>(-3, 80);
  e.side = take_mode<erase_side>(input, 1);
  e.characters = characters;
  e.match_case = input.ConsumeBool();
  e.whole_word = input.ConsumeBool();
  const std::u16string name = take_text(input, 200);

  std::u16string result;
  check_answer(name, operations[0].apply(name, result), result);

  check_answer(name, operations[1].apply(name, result), result);
  require(result.size() == name.size());

  const bool inserted = operations[2].apply(name, result);
  check_answer(name, inserted, result);
  if (inserted) {
    const std::u16string_view text = insertion;
    require(result.size() == name.size() + text.size());
    require(result == std::u16string(text) + name || result == name + std::u16string(text));
  }

  check_answer(name, operations[3].apply(name, result), result);
  require(is_prefix(result, name) || is_suffix(result, name));

  // The chain is its operations one after another, each on what the one before left.
  std::u16string current, scratch;
  const bool chained = run_chain(operations, name, current, scratch);
  std::u16string by_hand = name;
  bool any = false;
  for (const fuzz_operation& op : operations) {
    std::u16string out;
    if (op.apply(by_hand, out)) {
      any = true;
      by_hand = out;
    }
  }
  require(chained == any && current == by_hand);
  return 0;
}
