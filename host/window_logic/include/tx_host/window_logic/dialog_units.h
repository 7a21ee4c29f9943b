// Dialog units, the lengths Windows dialogs are laid out in: a quarter of the dialog font's
// average character width across, an eighth of its height down. The conversion to pixels rounds
// as Windows' MulDiv does, so that the portable layout and the window agree to the pixel.
#pragma once

#include <climits>
#include <cstdint>

namespace tx::host::window_logic {

// `a` × `b` / `c`, computed without overflow and rounded to the nearest whole number, halves
// away from zero; -1 when `c` is 0 or the result does not fit an int (Windows' MulDiv).
constexpr int mul_div(int a, int b, int c) noexcept {
  if (c == 0) return -1;
  std::int64_t product = std::int64_t{a} * b;
  std::int64_t divisor = c;
  if (divisor < 0) {
    product = -product;
    divisor = -divisor;
  }
  const std::int64_t half = divisor / 2;
  const std::int64_t result =
      product >= 0 ? (product + half) / divisor : (product - half) / divisor;
  if (result > INT_MAX || result < -INT_MAX) return -1;
  return static_cast<int>(result);
}

// Dialog units across to pixels, `base_x` being the font's average character width in pixels.
constexpr int dialog_units_x(int units, int base_x) noexcept { return mul_div(units, base_x, 4); }
// Dialog units down to pixels, `base_y` being the font's character height in pixels.
constexpr int dialog_units_y(int units, int base_y) noexcept { return mul_div(units, base_y, 8); }

}  // namespace tx::host::window_logic
