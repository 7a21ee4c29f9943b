// A scratch array of a size fixed at construction: inside the object (on the stack) up to
// `Inline` elements, on the heap beyond. Lets the rename functions keep lowered copies and search
// tables of ordinary names without allocating; the elements start uninitialised.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>

namespace tx::rename {

template <class T, std::size_t Inline>
class small_buffer {
 public:
  explicit small_buffer(std::size_t size) : size_(size) {
    if (size > Inline) heap_ = std::make_unique_for_overwrite<T[]>(size);
  }
  small_buffer(const small_buffer&) = delete;
  small_buffer& operator=(const small_buffer&) = delete;

  T* data() noexcept { return heap_ ? heap_.get() : inline_.data(); }
  const T* data() const noexcept { return heap_ ? heap_.get() : inline_.data(); }
  std::size_t size() const noexcept { return size_; }
  std::span<T> span() noexcept { return {data(), size_}; }
  T& operator[](std::size_t i) noexcept { return data()[i]; }
  const T& operator[](std::size_t i) const noexcept { return data()[i]; }

 private:
  std::size_t size_;
  std::unique_ptr<T[]> heap_;
  std::array<T, Inline> inline_;
};

}  // namespace tx::rename
