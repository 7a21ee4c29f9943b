// The search that find-and-replace and erase share: the next occurrence of a needle, optionally
// only as a whole word. With whole word on, «cat» is found in «a cat», «"cat"», «cats» (one
// unit follows, so the right side is not tested) but not in «catsx» nor «bobcat».
#pragma once

#include <cstddef>
#include <string_view>

#include "rename/separator_set.h"
#include "rename/substring_search.h"

namespace tx::rename {

inline constexpr std::size_t npos = std::u16string_view::npos;

// Rule: the first occurrence q of `needle` in `haystack` at or after `from`; with `whole_word`,
// the code unit before q (if q > 0) must be a separator, and the one at e = q + length(needle)
// too unless e ≥ length(haystack) − 1 (that right-side cut-off is deliberate); a rejected
// occurrence resumes the search at e, never inside it. npos when none (or the needle is empty).
// Example: find_word(u"catsx cat", u"cat", 0, true, seps) == 6.
std::size_t find_word(std::u16string_view haystack, std::u16string_view needle, std::size_t from,
                      bool whole_word, const separator_set& separators);

// find_word for one needle over many searches, its search table built once. The needle and the
// separator set must outlive the finder.
class word_finder {
 public:
  word_finder(std::u16string_view needle, bool whole_word, const separator_set& separators)
      : searcher_(needle), whole_word_(whole_word), separators_(separators) {}

  std::size_t find(std::u16string_view haystack, std::size_t from) const noexcept;

 private:
  bool bounded(std::u16string_view haystack, std::size_t q) const noexcept;

  substring_searcher searcher_;
  bool whole_word_;
  const separator_set& separators_;
};

}  // namespace tx::rename
