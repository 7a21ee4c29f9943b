// How far the host reads what a plug-in reports: counts and depths far beyond any real dialog's,
// so that a plug-in answering absurd counts (or a layout that contains itself) is read this far
// and no further, the same in the text host and in the window.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace tx::host::dialog {

struct limits {
  // Elements nested in elements: the docker, group boxes, grids and stacks.
  static constexpr int element_depth = 64;
  // The lines of a grid (rows, columns), the entries of a stack, the items of a list (a
  // drop-down's items, an input's history, a toolbar's tools and pictures, the buttons).
  static constexpr std::int32_t count = 1000;
  // Rows under rows in an outline.
  static constexpr std::size_t row_depth = 256;
};

// `reported` as the host reads it: no fewer than none, no more than `limits::count`.
constexpr std::int32_t bounded_count(std::int32_t reported) noexcept {
  return std::clamp(reported, std::int32_t{0}, limits::count);
}

}  // namespace tx::host::dialog
