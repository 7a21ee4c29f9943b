// Erase: a part of the name removed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "rename/separator_set.h"

namespace tx::rename {

// The drop-down's item index; no selection is `none`.
enum class erase_kind : std::int32_t {
  none = -1,
  n_chars = 0,           // N code units at the chosen side
  everything_to = 1,     // what stands before the first occurrence of the characters
  everything_after = 2,  // what stands after the last occurrence of the characters
  extension = 3,         // the extension (cut_extension)
  unchanged = 4,
};

// Index of the side drop-down; any index other than begin counts as the end.
enum class erase_side : std::int32_t { begin = 0, end = 1 };

struct erase_settings {
  erase_kind kind = erase_kind::none;
  std::int32_t count = 0;  // N, for n_chars
  erase_side side = erase_side::begin;
  std::u16string_view characters{};  // for everything_to and everything_after
  bool match_case = false;
  bool whole_word = false;
};

// Rule, by kind:
// - n_chars: N < 1 changes nothing; N ≥ length empties the name; otherwise N units go from the
//   start (begin) or the end (any other side). «abcdef», N 2, end: «abcd».
// - everything_to: the name from the first occurrence that find_word accepts (lower-cased copies
//   compared unless match case), the occurrence kept. «a_b_c», «_»: «_b_c».
// - everything_after: the name up to the end of the last accepted occurrence. «a_b_c», «_»:
//   «a_b_».
// - extension: cut_extension. «layer.tab»: «layer».
// - unchanged, none and any other value: nothing; so do empty characters, or none found.
// `result` is set to the name first and reused; it must not be the name's own storage. Returns
// whether result ≠ name.
bool erase(std::u16string_view name, const erase_settings& settings,
           const separator_set& separators, std::u16string& result);

// Whether the settings change no name: n_chars with N < 1, everything_to or everything_after with
// empty characters, and every kind but those three and extension.
bool is_idle(const erase_settings& settings) noexcept;

}  // namespace tx::rename
