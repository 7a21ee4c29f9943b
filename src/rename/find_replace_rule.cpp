#include "rename/find_replace_rule.h"

#include "rename/find_word.h"
#include "rename/match_text.h"

namespace tx::rename {
namespace {

bool is_known(replace_mode mode) noexcept {
  return mode >= replace_mode::all && mode <= replace_mode::all_except_last;
}

// Whether the mode needs the number of occurrences before it can decide on the first one.
bool needs_count(replace_mode mode) noexcept {
  return mode == replace_mode::last || mode == replace_mode::all_except_last;
}

bool is_replaced(replace_mode mode, std::size_t k, std::size_t count) noexcept {
  switch (mode) {
    case replace_mode::all:
      return true;
    case replace_mode::first:
      return k == 0;
    case replace_mode::last:
      return k + 1 == count;
    case replace_mode::all_except_first:
      return k != 0;
    case replace_mode::all_except_last:
      return k + 1 != count;
  }
  return false;
}

std::size_t count_occurrences(const word_finder& finder, std::u16string_view haystack,
                              std::size_t length) noexcept {
  std::size_t count = 0;
  for (std::size_t q = finder.find(haystack, 0); q != npos; q = finder.find(haystack, q + length)) {
    ++count;
  }
  return count;
}

}  // namespace

bool find_replace(std::u16string_view name, const find_replace_settings& settings,
                  const separator_set& separators, std::u16string& result) {
  const std::u16string_view search = settings.search;
  const replace_mode mode = settings.mode;
  if (search.empty() || search == settings.replacement || !is_known(mode)) {
    result.assign(name);
    return false;
  }

  const match_text haystack(name, settings.match_case);
  const match_text needle(search, settings.match_case);
  const word_finder finder(needle.view(), settings.whole_word, separators);
  const std::size_t length = search.size();

  // Only "last" and "all except last" must know N first; for the others, no occurrence simply
  // means nothing is replaced.
  const std::size_t count =
      needs_count(mode) ? count_occurrences(finder, haystack.view(), length) : npos;
  std::size_t q = count == 0 ? npos : finder.find(haystack.view(), 0);
  if (q == npos) {
    result.assign(name);
    return false;
  }

  result.clear();
  std::size_t copied = 0;
  for (std::size_t k = 0; q != npos; ++k) {
    result.append(name.substr(copied, q - copied));
    result.append(is_replaced(mode, k, count) ? settings.replacement : search);
    copied = q + length;
    // "first" is done after its one replacement; "all except last" leaves the last occurrence
    // as it stands in the name.
    if (mode == replace_mode::first) break;
    if (mode == replace_mode::all_except_last && k + 2 == count) break;
    q = finder.find(haystack.view(), copied);
  }
  result.append(name.substr(copied));
  return std::u16string_view(result) != name;
}

}  // namespace tx::rename
