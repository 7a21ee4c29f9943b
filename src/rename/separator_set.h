// The characters that split a name into words: the plug-in's string 128, plus the double quote,
// which the string does not hold but which counts as a separator wherever one is asked for.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tx::rename {

// A set of UTF-16 code units, built once from a text that lists them (string 128). Lookup is a
// bit test for ASCII units and a search among the few others (string 128 has one: "№").
class separator_set {
 public:
  separator_set() = default;
  explicit separator_set(std::u16string_view members);

  bool contains(char16_t unit) const noexcept {
    if (unit < 128) return (ascii_[unit >> 6] >> (unit & 63)) & 1;
    return contains_other(unit);
  }

 private:
  bool contains_other(char16_t unit) const noexcept;

  std::array<std::uint64_t, 2> ascii_{};
  std::vector<char16_t> others_;  // sorted, no repeats
};

// Whether `unit` separates words: a member of the set, or the double quote.
inline bool is_separator(const separator_set& set, char16_t unit) noexcept {
  return set.contains(unit) || unit == u'"';
}

}  // namespace tx::rename
