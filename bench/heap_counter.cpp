#include "heap_counter.h"

#include <malloc.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

// What the C library really set aside for a block of malloc.
std::size_t usable_size(void* memory) noexcept {
#ifdef _WIN32
  return _msize(memory);
#else
  return malloc_usable_size(memory);
#endif
}

std::atomic<std::size_t> allocations{0};
std::atomic<std::size_t> live{0};
std::atomic<std::size_t> peak{0};

void count_allocated(void* memory) noexcept {
  const std::size_t size = usable_size(memory);
  const std::size_t now = live.fetch_add(size, std::memory_order_relaxed) + size;
  std::size_t highest = peak.load(std::memory_order_relaxed);
  while (now > highest && !peak.compare_exchange_weak(highest, now, std::memory_order_relaxed)) {
  }
}

void* allocate(std::size_t size) noexcept {
  allocations.fetch_add(1, std::memory_order_relaxed);
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory != nullptr) count_allocated(memory);
  return memory;
}

void release(void* memory) noexcept {
  if (memory == nullptr) return;
  live.fetch_sub(usable_size(memory), std::memory_order_relaxed);
  std::free(memory);
}

// Over-aligned blocks are cut from a plain block with room for the alignment, the plain block's
// address kept just before the aligned one (the same in both builds: the Windows C library has
// no aligned_alloc whose blocks free() takes). The aligned forms of new and delete always come
// in pairs, so every aligned block is made and freed this way.
void* allocate_aligned(std::size_t size, std::size_t alignment) noexcept {
  if (alignment < alignof(void*)) alignment = alignof(void*);
  void* block = allocate(size + alignment + sizeof(void*));
  if (block == nullptr) return nullptr;
  const auto start = reinterpret_cast<std::uintptr_t>(block) + sizeof(void*);
  void* aligned = reinterpret_cast<void*>((start + alignment - 1) / alignment * alignment);
  static_cast<void**>(aligned)[-1] = block;
  return aligned;
}

void release_aligned(void* memory) noexcept {
  if (memory != nullptr) release(static_cast<void**>(memory)[-1]);
}

void* or_throw(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

std::size_t to_size(std::align_val_t alignment) noexcept {
  return static_cast<std::size_t>(alignment);
}

}  // namespace

namespace tx::bench {

std::size_t allocation_count() noexcept { return allocations.load(std::memory_order_relaxed); }

std::size_t live_heap_bytes() noexcept { return live.load(std::memory_order_relaxed); }

std::size_t peak_heap_bytes() noexcept { return peak.load(std::memory_order_relaxed); }

void reset_peak_heap_bytes() noexcept {
  peak.store(live.load(std::memory_order_relaxed), std::memory_order_relaxed);
}

}  // namespace tx::bench

void* operator new(std::size_t size) { return or_throw(allocate(size)); }
void* operator new[](std::size_t size) { return or_throw(allocate(size)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return or_throw(allocate_aligned(size, to_size(alignment)));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return or_throw(allocate_aligned(size, to_size(alignment)));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate_aligned(size, to_size(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate_aligned(size, to_size(alignment));
}

void operator delete(void* memory) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { release(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { release(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { release(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { release_aligned(memory); }
void operator delete[](void* memory, std::align_val_t) noexcept { release_aligned(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  release_aligned(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
  release_aligned(memory);
}
void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept {
  release_aligned(memory);
}
void operator delete[](void* memory, std::align_val_t, const std::nothrow_t&) noexcept {
  release_aligned(memory);
}
