#include "rename/find_word.h"

namespace tx::rename {

std::size_t find_word(std::u16string_view haystack, std::u16string_view needle, std::size_t from,
                      bool whole_word, const separator_set& separators) {
  return word_finder(needle, whole_word, separators).find(haystack, from);
}

std::size_t word_finder::find(std::u16string_view haystack, std::size_t from) const noexcept {
  const std::size_t length = searcher_.needle().size();
  for (std::size_t q = searcher_.find(haystack, from); q != npos;
       q = searcher_.find(haystack, q + length)) {
    if (!whole_word_ || bounded(haystack, q)) return q;
  }
  return npos;
}

bool word_finder::bounded(std::u16string_view haystack, std::size_t q) const noexcept {
  if (q > 0 && !is_separator(separators_, haystack[q - 1])) return false;
  const std::size_t e = q + searcher_.needle().size();
  // An occurrence that ends at the last unit or one before it is bounded on the right.
  if (e + 1 >= haystack.size()) return true;
  return is_separator(separators_, haystack[e]);
}

}  // namespace tx::rename
