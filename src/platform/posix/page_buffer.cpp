// Whole pages from an anonymous private mapping, returned with munmap.
#include <sys/mman.h>

#include "platform/platform.h"

namespace tx::platform {

page_buffer::page_buffer(std::size_t size) noexcept {
  if (size == 0) return;
  void* const pages =
      mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (pages == MAP_FAILED) return;
  data_ = static_cast<std::uint8_t*>(pages);
  size_ = size;
}

void page_buffer::release() noexcept {
  if (data_ != nullptr) munmap(data_, size_);
  data_ = nullptr;
  size_ = 0;
}

}  // namespace tx::platform
