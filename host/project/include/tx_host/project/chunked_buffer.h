// Items that never move once made: room for them is taken from large chunks, one after the
// other, and every chunk lives until the buffer does. The project keeps its elements, their child
// lists and their captions in such buffers, so that a handle a plug-in holds (the element's
// address) or a caption it was handed stays valid until the project closes, and a million
// elements cost a few hundred allocations rather than millions.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace tx::host {

template <typename T>
class chunked_buffer {
 public:
  // `chunk_items`: the items of one chunk; a request for more gets a chunk of its own size.
  explicit chunked_buffer(std::size_t chunk_items) noexcept : chunk_items_(chunk_items) {}
  chunked_buffer(chunked_buffer&&) noexcept = default;
  chunked_buffer& operator=(chunked_buffer&&) noexcept = default;

  // `count` items next to each other that never move: value-initialized, or as they were left
  // when given back.
  T* room(std::size_t count) {
    if (left_ < count) {
      const std::size_t size = std::max(count, chunk_items_);
      chunks_.push_back(std::make_unique<T[]>(size));
      free_ = chunks_.back().get();
      left_ = size;
    }
    T* const start = free_;
    free_ += count;
    left_ -= count;
    return start;
  }

  // Gives back the last `count` items of the latest room(), which were not needed.
  void give_back(std::size_t count) noexcept {
    free_ -= count;
    left_ += count;
  }

  // The items made from `first` to `last`, next to each other.
  template <typename It>
  T* keep(It first, It last) {
    T* const start = room(static_cast<std::size_t>(last - first));
    std::copy(first, last, start);
    return start;
  }

 private:
  std::size_t chunk_items_;
  std::vector<std::unique_ptr<T[]>> chunks_;
  T* free_ = nullptr;     // the first free item of the last chunk
  std::size_t left_ = 0;  // free items from there
};

}  // namespace tx::host
