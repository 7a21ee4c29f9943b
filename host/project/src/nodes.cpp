#include "tx_host/project/nodes.h"

#include <algorithm>

void tx_lr_group::remove_child(std::size_t index) noexcept {
  std::move(children_ + index + 1, children_ + child_count_, children_ + index);
  --child_count_;
}

namespace tx::host {

std::u16string_view element_memory::keep_caption(std::u16string_view text) {
  char16_t* const start = captions.room(text.size() + 1);
  std::copy(text.begin(), text.end(), start);
  start[text.size()] = u'\0';
  return {start, text.size()};
}

}  // namespace tx::host
