// The chain: the active operations applied in order, each to the output of the one before.
// Works over any range of operations, pointers to them (raw or smart) or reference wrappers,
// whose `apply(const std::u16string& name, std::u16string& result) -> bool` sets result to the
// name first and returns whether it changed it.
// Example: [replace «road» by «street», upper case] on «main road» gives «MAIN STREET», changed.
#pragma once

#include <ranges>
#include <string>
#include <utility>

namespace tx::rename {

namespace detail {

template <class T>
decltype(auto) operation_of(T&& item) {
  if constexpr (requires {
                  item.apply(std::declval<const std::u16string&>(),
                             std::declval<std::u16string&>());
                }) {
    return std::forward<T>(item);
  } else if constexpr (requires {
                         item.get().apply(std::declval<const std::u16string&>(),
                                          std::declval<std::u16string&>());
                       }) {
    return item.get();
  } else {
    return *item;
  }
}

}  // namespace detail

// Rule: current := name; for each operation in order, apply(current, out), and when it returns
// true, current := out. Leaves the new name in `current` and returns whether any operation
// changed it. `scratch` is the operations' output buffer; both buffers keep their capacity
// between calls, so a run over many names allocates only while they grow. Neither may be `name`.
template <std::ranges::input_range Operations>
bool run_chain(Operations&& operations, const std::u16string& name, std::u16string& current,
               std::u16string& scratch) {
  current.assign(name);
  bool changed = false;
  for (auto&& item : operations) {
    if (detail::operation_of(item).apply(current, scratch)) {
      changed = true;
      current.swap(scratch);
    }
  }
  return changed;
}

struct chain_result {
  std::u16string name;
  bool changed = false;
};

// run_chain with fresh buffers: the new name and whether any operation changed it.
template <std::ranges::input_range Operations>
chain_result chain(Operations&& operations, const std::u16string& name) {
  chain_result out;
  std::u16string scratch;
  out.changed = run_chain(std::forward<Operations>(operations), name, out.name, scratch);
  return out;
}

}  // namespace tx::rename
