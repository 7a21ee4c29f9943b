#include "tx_host/project/caption_log.h"

#include <algorithm>

namespace tx::host {

void caption_log::record(tx_uuid uuid, std::u16string_view old_caption,
                         std::u16string_view new_caption, std::size_t depth) {
  if (writes_.size() == writes_.capacity()) {
    writes_.reserve(std::max<std::size_t>(64, 2 * writes_.capacity()));
  }
  char16_t* text = room(old_caption.size() + new_caption.size() + 2);
  // Nothing below fails.
  const char16_t* old_copy = copy(old_caption, text);
  const char16_t* new_copy = copy(new_caption, text + old_caption.size() + 1);
  writes_.push_back({uuid, old_copy, new_copy, depth});
}

char16_t* caption_log::room(std::size_t units) {
  if (left_ < units) {
    const std::size_t size = std::max(units, chunk_units);
    chunks_.push_back(std::make_unique_for_overwrite<char16_t[]>(size));
    free_ = chunks_.back().get();
    left_ = size;
  }
  char16_t* start = free_;
  free_ += units;
  left_ -= units;
  return start;
}

const char16_t* caption_log::copy(std::u16string_view text, char16_t* into) noexcept {
  std::copy(text.begin(), text.end(), into);
  into[text.size()] = 0;
  return into;
}

void caption_log::clear() noexcept {
  writes_.clear();
  chunks_.clear();
  free_ = nullptr;
  left_ = 0;
}

}  // namespace tx::host
