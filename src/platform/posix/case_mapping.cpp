// Case mapping natively from the case pairs of tools/make_case_pairs.py, compiled in: the same
// answers on every machine, whatever locales it has. Follows the Windows tables: a letter maps
// only to a partner that maps back to it, so "İ", "ı", "ς", "ẞ" and title-case digraphs stay as
// they are; a surrogate pair maps as one code point, a lone surrogate not at all.
#include <array>
#include <cstdint>

#include "platform/platform.h"

namespace tx::platform {
namespace {

// Uppers from `first` to `last`, every `stride`-th, each with its lower `delta` away.
struct case_run {
  char32_t first;
  char32_t last;
  std::int32_t stride;
  std::int32_t delta;
};

constexpr case_run kRuns[] = {
#include "case_pairs.inc"
};

enum class direction { lower, upper };

// Every code unit's partner in each direction (itself when it has none), made once from the runs.
class unit_tables {
 public:
  unit_tables() noexcept {
    for (std::size_t unit = 0; unit < lower_.size(); ++unit) {
      lower_[unit] = upper_[unit] = static_cast<char16_t>(unit);
    }
    for (const case_run& run : kRuns) {
      for (char32_t upper = run.first; upper <= run.last && upper < 0x10000;
           upper += static_cast<char32_t>(run.stride)) {
        const char32_t lower = static_cast<char32_t>(static_cast<std::int32_t>(upper) + run.delta);
        if (lower >= 0x10000) continue;
        lower_[upper] = static_cast<char16_t>(lower);
        upper_[lower] = static_cast<char16_t>(upper);
      }
    }
  }
  char16_t mapped(char16_t unit, direction to) const noexcept {
    return to == direction::lower ? lower_[unit] : upper_[unit];
  }

 private:
  std::array<char16_t, 0x10000> lower_{};
  std::array<char16_t, 0x10000> upper_{};
};

const unit_tables& tables() noexcept {
  static const unit_tables instance;
  return instance;
}

// A code point beyond the basic plane mapped, found among the runs.
char32_t mapped_beyond(char32_t c, direction to) noexcept {
  for (const case_run& run : kRuns) {
    const char32_t first =
        to == direction::lower
            ? run.first
            : static_cast<char32_t>(static_cast<std::int32_t>(run.first) + run.delta);
    const char32_t last = first + (run.last - run.first);
    if (c < first || c > last || (c - first) % static_cast<char32_t>(run.stride) != 0) continue;
    const std::int32_t shift = to == direction::lower ? run.delta : -run.delta;
    return static_cast<char32_t>(static_cast<std::int32_t>(c) + shift);
  }
  return c;
}

constexpr bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }
constexpr bool is_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

void map_text(std::span<char16_t> text, direction to) noexcept {
  const unit_tables& units = tables();
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (is_high_surrogate(unit) && i + 1 < text.size() && is_low_surrogate(text[i + 1])) {
      const char32_t code_point =
          0x10000 + ((char32_t{unit} - 0xD800) << 10) + (text[i + 1] - 0xDC00);
      const char32_t result = mapped_beyond(code_point, to);
      // A pair stays a pair: the length never changes.
      if (result >= 0x10000 && result <= 0x10FFFF) {
        text[i] = static_cast<char16_t>(0xD800 + ((result - 0x10000) >> 10));
        text[i + 1] = static_cast<char16_t>(0xDC00 + ((result - 0x10000) & 0x3FF));
      }
      ++i;
      continue;
    }
    if (is_surrogate(unit)) continue;
    text[i] = units.mapped(unit, to);
  }
}

}  // namespace

void to_lower(std::span<char16_t> text) noexcept { map_text(text, direction::lower); }

void to_upper(std::span<char16_t> text) noexcept { map_text(text, direction::upper); }

}  // namespace tx::platform
