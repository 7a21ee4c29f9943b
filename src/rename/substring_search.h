// Plain code-unit search for one needle in many places, in time linear in the text searched:
// short needles by a scan for their first unit, longer ones by Knuth–Morris–Pratt (its table
// built once per searcher). «aa» in «xaaaa» from 0 is at 1; from 2 at 2.
#pragma once

#include <cstddef>
#include <string_view>

#include "rename/small_buffer.h"

namespace tx::rename {

class substring_searcher {
 public:
  // `needle` must outlive the searcher. An empty needle is found nowhere.
  explicit substring_searcher(std::u16string_view needle);
  substring_searcher(const substring_searcher&) = delete;
  substring_searcher& operator=(const substring_searcher&) = delete;

  // The first position at or after `from` where the needle starts in `text`; npos when none.
  std::size_t find(std::u16string_view text, std::size_t from) const noexcept;

  std::u16string_view needle() const noexcept { return needle_; }

 private:
  // Up to this length a scan checks every candidate: at most this many comparisons per unit.
  static constexpr std::size_t scan_limit = 16;

  std::size_t find_by_scan(std::u16string_view text, std::size_t from) const noexcept;
  std::size_t find_by_table(std::u16string_view text, std::size_t from) const noexcept;

  std::u16string_view needle_;
  // For needles longer than scan_limit: border_[i] is the length of the longest proper border of
  // needle_[0 .. i].
  small_buffer<std::size_t, 64> border_;
};

}  // namespace tx::rename
