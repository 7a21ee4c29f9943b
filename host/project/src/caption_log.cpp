#include "tx_host/project/caption_log.h"

namespace tx::host {

void caption_log::record(tx_uuid uuid, const char16_t* old_caption, const char16_t* new_caption,
                         std::size_t depth) {
  writes_.push_back({uuid, old_caption, new_caption, depth});
}

void caption_log::clear() noexcept {
  writes_.clear();
  writes_.shrink_to_fit();
}

}  // namespace tx::host
