// Items that never move once made: room for them is taken from large chunks, one after the
// other, and every chunk lives until the buffer does. The project keeps its elements, their child
// lists and their captions in such buffers, so that a handle a plug-in holds (the element's
// address) or a caption it was handed stays valid until the project closes, and a million
// elements cost a few hundred allocations rather than millions.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace tx::host {

template <typename T>
class chunked_buffer {
 public:
  // `chunk_items`: the items of one chunk; a request for more gets a chunk of its own size.
  explicit chunked_buffer(std::size_t chunk_items) noexcept : chunk_items_(chunk_items) {}
  // Items are handed out by address: the buffer stays where it was made.
  chunked_buffer(const chunked_buffer&) = delete;
  chunked_buffer& operator=(const chunked_buffer&) = delete;

  // `count` items next to each other that never move: value-initialized, or as they were left
  // when given back.
  T* room(std::size_t count) {
    if (chunks_.empty() || chunks_.back().size - chunks_.back().used < count) {
      const std::size_t size = std::max(count, chunk_items_);
      chunks_.push_back({std::make_unique<T[]>(size), size, 0});
    }
    chunk& last = chunks_.back();
    T* const start = last.items.get() + last.used;
    last.used += count;
    return start;
  }

  // Gives back the last `count` items of the latest room(), which were not needed.
  void give_back(std::size_t count) noexcept { chunks_.back().used -= count; }

  // The items made from `first` to `last`, next to each other.
  template <typename It>
  T* keep(It first, It last) {
    T* const start = room(static_cast<std::size_t>(last - first));
    std::copy(first, last, start);
    return start;
  }

  // Calls `visit` with every item handed out and not given back, in the order made.
  template <typename Visit>
  void for_each(Visit&& visit) {
    for (const chunk& c : chunks_) {
      for (std::size_t i = 0; i < c.used; ++i) visit(c.items[i]);
    }
  }

  void swap(chunked_buffer& other) noexcept {
    std::swap(chunk_items_, other.chunk_items_);
    chunks_.swap(other.chunks_);
  }

 private:
  struct chunk {
    std::unique_ptr<T[]> items;
    std::size_t size;
    std::size_t used;  // items handed out from the start
  };

  std::size_t chunk_items_;
  std::vector<chunk> chunks_;
};

}  // namespace tx::host
