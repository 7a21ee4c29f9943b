#include "heap_counter.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocations{0};
std::atomic<std::size_t> live{0};
std::atomic<std::size_t> peak{0};

void count_allocated(void* memory) noexcept {
  const std::size_t size = malloc_usable_size(memory);
  const std::size_t now = live.fetch_add(size, std::memory_order_relaxed) + size;
  std::size_t highest = peak.load(std::memory_order_relaxed);
  while (now > highest && !peak.compare_exchange_weak(highest, now, std::memory_order_relaxed)) {
  }
}

void* allocate(std::size_t size, std::size_t alignment) noexcept {
  allocations.fetch_add(1, std::memory_order_relaxed);
  if (size == 0) size = 1;
  void* memory =
      alignment <= alignof(std::max_align_t)
          ? std::malloc(size)
          // aligned_alloc wants a size that is a multiple of the alignment.
          : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
  if (memory != nullptr) count_allocated(memory);
  return memory;
}

void* allocate_or_throw(std::size_t size, std::size_t alignment) {
  if (void* memory = allocate(size, alignment)) return memory;
  throw std::bad_alloc();
}

void release(void* memory) noexcept {
  if (memory == nullptr) return;
  live.fetch_sub(malloc_usable_size(memory), std::memory_order_relaxed);
  std::free(memory);
}

constexpr std::size_t plain = alignof(std::max_align_t);

}  // namespace

namespace tx::bench {

std::size_t allocation_count() noexcept { return allocations.load(std::memory_order_relaxed); }

std::size_t live_heap_bytes() noexcept { return live.load(std::memory_order_relaxed); }

std::size_t peak_heap_bytes() noexcept { return peak.load(std::memory_order_relaxed); }

void reset_peak_heap_bytes() noexcept {
  peak.store(live.load(std::memory_order_relaxed), std::memory_order_relaxed);
}

}  // namespace tx::bench

void* operator new(std::size_t size) { return allocate_or_throw(size, plain); }
void* operator new[](std::size_t size) { return allocate_or_throw(size, plain); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate_or_throw(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return allocate_or_throw(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return allocate(size, plain);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return allocate(size, plain);
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* memory) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { release(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { release(memory); }
void operator delete[](void* memory, std::align_val_t) noexcept { release(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept { release(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { release(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { release(memory); }
void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept {
  release(memory);
}
void operator delete[](void* memory, std::align_val_t, const std::nothrow_t&) noexcept {
  release(memory);
}
