// Whole pages from VirtualAlloc, returned with VirtualFree.
#include "platform/platform.h"
#include "platform/win32/handles.h"

namespace tx::platform {

page_buffer::page_buffer(std::size_t size) noexcept {
  if (size == 0) return;
  void* pages = VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  if (pages == nullptr) return;
  data_ = static_cast<std::uint8_t*>(pages);
  size_ = size;
}

void page_buffer::release() noexcept {
  if (data_ != nullptr) VirtualFree(data_, 0, MEM_RELEASE);
  data_ = nullptr;
  size_ = 0;
}

}  // namespace tx::platform
