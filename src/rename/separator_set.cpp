#include "rename/separator_set.h"

#include <algorithm>

namespace tx::rename {

separator_set::separator_set(std::u16string_view members) {
  for (const char16_t unit : members) {
    if (unit < 128) {
      ascii_[unit >> 6] |= std::uint64_t{1} << (unit & 63);
    } else {
      others_.push_back(unit);
    }
  }
  std::sort(others_.begin(), others_.end());
  others_.erase(std::unique(others_.begin(), others_.end()), others_.end());
}

bool separator_set::contains_other(char16_t unit) const noexcept {
  return std::binary_search(others_.begin(), others_.end(), unit);
}

}  // namespace tx::rename
