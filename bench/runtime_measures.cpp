#include "runtime_measures.h"

#include <memory>
#include <string>
#include <vector>

#include "run_timer.h"

namespace tx::bench {
namespace {

constexpr std::size_t calls = 1'000'000;
constexpr std::size_t passes = 5;
constexpr std::u16string_view name = u"Road (2) building ДОРОГА_Лес-участки.tab";
static_assert(name.size() == 40);

constexpr std::size_t page = 4096;
constexpr std::size_t large_block = 32u << 20;

void set(scale_results& results, const char* key, const run_timer& timer, std::size_t count) {
  results.set("runtime." + std::string(key) + ".ns",
              timer.median_seconds() * 1e9 / static_cast<double>(count));
}

}  // namespace

void measure_runtime(scale_results& results) {
  run_timer copy, allocate, release, large;
  std::u16string buffer;
  buffer.reserve(256);
  std::vector<std::unique_ptr<char16_t[]>> blocks(calls);
  std::size_t checksum = 0;
  for (std::size_t pass = 0; pass < passes; ++pass) {
    copy.time([&] {
      for (std::size_t i = 0; i < calls; ++i) {
        buffer.assign(name);
        checksum += static_cast<std::size_t>(buffer[i % name.size()]);
      }
    });
    // Every block is held until all are made, as a step's names are, then all are freed.
    allocate.time([&] {
      for (std::unique_ptr<char16_t[]>& block : blocks) {
        block = std::make_unique_for_overwrite<char16_t[]>(name.size());
      }
    });
    release.time([&] {
      for (std::unique_ptr<char16_t[]>& block : blocks) block.reset();
    });
    // Made after the million small blocks above were freed, as a step's vectors are made after
    // the previous step's memory was given back.
    large.time([&] {
      const auto block = std::make_unique_for_overwrite<unsigned char[]>(large_block);
      for (std::size_t at = 0; at < large_block; at += page) block[at] = 1;
      checksum += block[page];
    });
  }
  // The copies must be seen to be used, or the compiler may drop them.
  if (checksum == 0) results.set_text("runtime.copy.unused", "no copy was read");
  set(results, runtime_operations[0].key, copy, calls);
  set(results, runtime_operations[1].key, allocate, calls);
  set(results, runtime_operations[2].key, release, calls);
  set(results, runtime_operations[3].key, large, large_block / page);
}

}  // namespace tx::bench
