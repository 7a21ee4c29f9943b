// The record of caption writes that the tests read: one compact record a write, the old and the
// new caption copied once into chunks of text that never move, so a caption handed out stays
// valid while more are recorded.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "tx_host/project.h"

namespace tx::host {

class caption_log {
 public:
  caption_log() = default;
  caption_log(const caption_log&) = delete;
  caption_log& operator=(const caption_log&) = delete;

  // Records one write. On failure (out of memory) nothing is recorded.
  void record(tx_uuid uuid, std::u16string_view old_caption, std::u16string_view new_caption,
              std::size_t depth);
  std::size_t size() const noexcept { return writes_.size(); }
  // Write `index`, oldest first; its captions are NUL-terminated and live until clear().
  const tx_host_caption_write& operator[](std::size_t index) const noexcept {
    return writes_[index];
  }
  // Forgets every write and frees its text.
  void clear() noexcept;

 private:
  // Room for `units` code units in the current chunk, starting a new one when it is full.
  char16_t* room(std::size_t units);
  static const char16_t* copy(std::u16string_view text, char16_t* into) noexcept;

  static constexpr std::size_t chunk_units = 32 * 1024;

  std::vector<tx_host_caption_write> writes_;
  std::vector<std::unique_ptr<char16_t[]>> chunks_;
  char16_t* free_ = nullptr;  // the first free code unit of the last chunk
  std::size_t left_ = 0;      // free code units from there
};

}  // namespace tx::host
