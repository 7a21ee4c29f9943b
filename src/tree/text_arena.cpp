#include "tree/text_arena.h"

#include <algorithm>
#include <stdexcept>

namespace tx {

prjrename_text prjrename_text_arena::add(std::u16string_view text) {
  constexpr std::size_t longest = 0xFFFFFFFFu;
  if (text.size() >= longest) throw std::length_error("string too long");
  const std::size_t units = text.size() + 3;  // length, text, zero
  char16_t* record = free_;
  if (units > chunk_units) {
    // A chunk of its own; the current one stays current.
    chunks_.push_back(std::make_unique_for_overwrite<char16_t[]>(units));
    record = chunks_.back().get();
  } else if (units > left_) {
    chunks_.push_back(std::make_unique_for_overwrite<char16_t[]>(chunk_units));
    record = free_ = chunks_.back().get();
    left_ = chunk_units;
  }
  record[0] = static_cast<char16_t>(text.size() & 0xFFFF);
  record[1] = static_cast<char16_t>(text.size() >> 16);
  std::copy(text.begin(), text.end(), record + 2);
  record[2 + text.size()] = 0;
  if (record == free_) {
    free_ += units;
    left_ -= units;
  }
  return prjrename_text(record + 2);
}

}  // namespace tx
