// Find and replace: which occurrences of a search text become the replacement text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "rename/separator_set.h"

namespace tx::rename {

// Which of the N occurrences (k counted from 0) are replaced; the values are the drop-down's.
enum class replace_mode : std::int32_t {
  all = 0,               // every k
  first = 1,             // k = 0
  last = 2,              // k = N − 1
  all_except_first = 3,  // k ≠ 0
  all_except_last = 4,   // k ≠ N − 1
};

struct find_replace_settings {
  std::u16string_view search{};
  std::u16string_view replacement{};
  bool match_case = false;
  bool whole_word = false;
  replace_mode mode = replace_mode::all;  // no selection counts as all
};

// Rule: the occurrences of `search` that find_word accepts (lower-cased copies compared unless
// match case; non-overlapping, left to right) are replaced by `replacement` where the mode says
// so; every other occurrence is written as `search` as typed, so it takes the search text's case;
// the rest of the name keeps its own. Nothing changes when the search text is empty, equals the
// replacement exactly, or the mode is none of the five.
// Example: «Road road ROAD», «road» → «street», all except first: «road street street».
// `result` is set to the name first and reused (no allocation while its capacity suffices); it
// must not be the name's own storage. Returns whether result ≠ name.
bool find_replace(std::u16string_view name, const find_replace_settings& settings,
                  const separator_set& separators, std::u16string& result);

// Whether the settings change no name: the search text is empty.
inline bool is_idle(const find_replace_settings& settings) noexcept {
  return settings.search.empty();
}

}  // namespace tx::rename
