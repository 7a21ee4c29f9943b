// The record of caption writes that the tests and txhost read: one compact record a write. The
// captions it points to are the project's own (its caption memory keeps every caption, old and
// new, until the project closes), so nothing is copied.
#pragma once

#include <cstddef>
#include <vector>

#include "tx_host/project.h"

namespace tx::host {

class caption_log {
 public:
  caption_log() = default;
  caption_log(const caption_log&) = delete;
  caption_log& operator=(const caption_log&) = delete;

  // Records one write; both captions are NUL-terminated and must outlive the record. On failure
  // (out of memory) nothing is recorded.
  void record(tx_uuid uuid, const char16_t* old_caption, const char16_t* new_caption,
              std::size_t depth);
  std::size_t size() const noexcept { return writes_.size(); }
  // Write `index`, oldest first.
  const tx_host_caption_write& operator[](std::size_t index) const noexcept {
    return writes_[index];
  }
  // Forgets every write.
  void clear() noexcept;

 private:
  std::vector<tx_host_caption_write> writes_;
};

}  // namespace tx::host
