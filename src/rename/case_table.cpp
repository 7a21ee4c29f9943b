#include "rename/case_table.h"

#include <array>
#include <cstddef>

#include "platform/platform.h"

namespace tx::rename {
namespace {

constexpr std::size_t units = 0x10000;
constexpr std::size_t first_surrogate = 0xD800;
constexpr std::size_t after_surrogates = 0xE000;

constexpr bool is_surrogate(char16_t unit) noexcept { return unit >= 0xD800 && unit <= 0xDFFF; }

struct case_tables {
  std::array<char16_t, units> lower;
  std::array<char16_t, units> upper;
};

using unit_map = void (*)(std::span<char16_t>) noexcept;

// `table` holds every unit mapped alone; the surrogates map to themselves (never read).
void fill(std::array<char16_t, units>& table, unit_map platform_map) noexcept {
  for (std::size_t unit = 0; unit < units; ++unit) table[unit] = static_cast<char16_t>(unit);
  const std::span<char16_t> all(table);
  platform_map(all.first(first_surrogate));
  platform_map(all.subspan(after_surrogates));
}

void fill(case_tables& tables) noexcept {
  fill(tables.lower, &platform::to_lower);
  fill(tables.upper, &platform::to_upper);
}

const case_tables& tables() noexcept {
  // Zero-initialised static storage (256 KB, trivially destructible), filled on first use.
  static case_tables storage;
  static const bool filled = (fill(storage), true);
  (void)filled;
  return storage;
}

void map(std::span<char16_t> text, const std::array<char16_t, units>& table,
         unit_map platform_map) noexcept {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (is_surrogate(text[i])) {
      platform_map(text.subspan(i));
      return;
    }
    text[i] = table[text[i]];
  }
}

}  // namespace

void lower_case_in_place(std::span<char16_t> text) noexcept {
  map(text, tables().lower, &platform::to_lower);
}

void upper_case_in_place(std::span<char16_t> text) noexcept {
  map(text, tables().upper, &platform::to_upper);
}

}  // namespace tx::rename
