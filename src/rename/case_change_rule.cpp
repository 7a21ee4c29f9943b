#include "rename/case_change_rule.h"

#include <span>

#include "rename/case_table.h"

namespace tx::rename {

bool change_case(std::u16string_view name, case_mode mode, const separator_set& separators,
                 std::u16string& result) {
  result.assign(name);
  const std::span<char16_t> units(result);
  switch (mode) {
    case case_mode::lower:
      lower_case_in_place(units);
      break;
    case case_mode::upper:
      upper_case_in_place(units);
      break;
    case case_mode::first_letter: {
      std::size_t i = 0;
      while (i < units.size() && is_separator(separators, units[i])) ++i;
      if (i == units.size()) return false;
      upper_case_in_place(units.subspan(i, 1));
      lower_case_in_place(units.subspan(i + 1));
      break;
    }
    case case_mode::unchanged:
    default:
      return false;
  }
  return std::u16string_view(result) != name;
}

}  // namespace tx::rename
