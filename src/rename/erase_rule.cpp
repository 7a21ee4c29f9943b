#include "rename/erase_rule.h"

#include "rename/extension_rule.h"
#include "rename/find_word.h"
#include "rename/match_text.h"

namespace tx::rename {
namespace {

// The part of `name` that n_chars keeps.
std::u16string_view keep_after_erasing(std::u16string_view name, std::int32_t count,
                                       erase_side side) noexcept {
  const auto n = static_cast<std::size_t>(count);
  if (n >= name.size()) return {};
  return side == erase_side::begin ? name.substr(n) : name.substr(0, name.size() - n);
}

// The part of `name` that everything_to or everything_after keeps; the name itself when the
// characters are not found.
std::u16string_view keep_around_characters(std::u16string_view name, const erase_settings& settings,
                                           const separator_set& separators) {
  const match_text haystack(name, settings.match_case);
  const match_text needle(settings.characters, settings.match_case);
  const word_finder finder(needle.view(), settings.whole_word, separators);
  const std::size_t length = settings.characters.size();

  const std::size_t first = finder.find(haystack.view(), 0);
  if (first == npos) return name;
  if (settings.kind == erase_kind::everything_to) return name.substr(first);

  std::size_t end = first + length;
  for (std::size_t q = finder.find(haystack.view(), end); q != npos;
       q = finder.find(haystack.view(), end)) {
    end = q + length;
  }
  return name.substr(0, end);
}

}  // namespace

bool erase(std::u16string_view name, const erase_settings& settings,
           const separator_set& separators, std::u16string& result) {
  if (is_idle(settings)) {
    result.assign(name);
    return false;
  }
  switch (settings.kind) {
    case erase_kind::n_chars:
      result.assign(keep_after_erasing(name, settings.count, settings.side));
      break;
    case erase_kind::everything_to:
    case erase_kind::everything_after:
      result.assign(keep_around_characters(name, settings, separators));
      break;
    case erase_kind::extension:
      result.assign(cut_extension(name));
      break;
    default:
      result.assign(name);
      return false;
  }
  // Every kept part is a piece of the name: it differs from the name exactly when it is shorter.
  return result.size() != name.size();
}

bool is_idle(const erase_settings& settings) noexcept {
  switch (settings.kind) {
    case erase_kind::n_chars:
      return settings.count < 1;
    case erase_kind::everything_to:
    case erase_kind::everything_after:
      return settings.characters.empty();
    case erase_kind::extension:
      return false;
    default:
      return true;
  }
}

}  // namespace tx::rename
