#include "rename/substring_search.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace tx::rename {

substring_searcher::substring_searcher(std::u16string_view needle)
    : needle_(needle), border_(needle.size() > scan_limit ? needle.size() : 0) {
  if (border_.size() == 0) return;
  border_[0] = 0;
  std::size_t k = 0;
  for (std::size_t i = 1; i < needle_.size(); ++i) {
    while (k > 0 && needle_[i] != needle_[k]) k = border_[k - 1];
    if (needle_[i] == needle_[k]) ++k;
    border_[i] = k;
  }
}

std::size_t substring_searcher::find(std::u16string_view text, std::size_t from) const noexcept {
  if (needle_.empty() || from > text.size() || text.size() - from < needle_.size()) {
    return std::u16string_view::npos;
  }
  return border_.size() == 0 ? find_by_scan(text, from) : find_by_table(text, from);
}

std::size_t substring_searcher::find_by_scan(std::u16string_view text,
                                             std::size_t from) const noexcept {
  const char16_t first = needle_.front();
  const std::u16string_view rest = needle_.substr(1);
  const std::size_t last_start = text.size() - needle_.size();
  const char16_t* units = text.data();
  const auto matches_at = [&](std::size_t q) {
    return units[q] == first && std::equal(rest.begin(), rest.end(), units + q + 1);
  };
  std::size_t q = from;
  if constexpr (std::endian::native == std::endian::little) {
    // Four candidates a step: the lanes of a 64-bit word equal to the first unit have their
    // top bit set in `hits` (a lane above a real hit may be set falsely: each is checked).
    constexpr std::uint64_t ones = 0x0001000100010001u;
    constexpr std::uint64_t tops = 0x8000800080008000u;
    const std::uint64_t pattern = ones * first;
    for (; q + 3 <= last_start; q += 4) {
      std::uint64_t word;
      std::memcpy(&word, units + q, sizeof word);
      const std::uint64_t x = word ^ pattern;
      for (std::uint64_t hits = (x - ones) & ~x & tops; hits != 0; hits &= hits - 1) {
        const std::size_t candidate = q + static_cast<std::size_t>(std::countr_zero(hits)) / 16;
        if (matches_at(candidate)) return candidate;
      }
    }
  }
  for (; q <= last_start; ++q) {
    if (matches_at(q)) return q;
  }
  return std::u16string_view::npos;
}

std::size_t substring_searcher::find_by_table(std::u16string_view text,
                                              std::size_t from) const noexcept {
  const std::size_t m = needle_.size();
  std::size_t k = 0;  // units of the needle matched so far
  for (std::size_t i = from; i < text.size(); ++i) {
    while (k > 0 && text[i] != needle_[k]) k = border_[k - 1];
    if (text[i] == needle_[k]) ++k;
    if (k == m) return i + 1 - m;
  }
  return std::u16string_view::npos;
}

}  // namespace tx::rename
