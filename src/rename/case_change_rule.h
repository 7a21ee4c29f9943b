// Case change: the letter case of the whole name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "rename/separator_set.h"

namespace tx::rename {

// The values are the drop-down's (its items stand in another order: unchanged first).
enum class case_mode : std::int32_t {
  lower = 0,         // «My Layer» → «my layer»
  upper = 1,         // «My Layer» → «MY LAYER»
  first_letter = 2,  // «  my LAYER» → «  My layer»
  unchanged = 3,
};

// Rule: lower or upper maps the whole name with the platform's case mapping; first letter raises
// the first unit that is no separator (double quote included), lowers everything after it and
// keeps what stands before it; a name of separators only, unchanged and any other value change
// nothing. Example: first letter on «(2D) scene» gives «(2d) scene».
// `result` is set to the name first and reused; it must not be the name's own storage. Returns
// whether result ≠ name.
bool change_case(std::u16string_view name, case_mode mode, const separator_set& separators,
                 std::u16string& result);

// Whether the mode changes no name: it is "unchanged".
inline bool is_idle(case_mode mode) noexcept { return mode == case_mode::unchanged; }

}  // namespace tx::rename
