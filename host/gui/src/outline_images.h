// The small pictures a tree-list draws in its first column: the expander of a row with rows under
// it (the list's state images) and the row's tick box (the list's small images, see box_image).
// Drawn once per list, at the list's icon size.
#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include "tx_host/dialog/row_format.h"
#include "win32_handles.h"

namespace tx::host::gui {

// The state image showing a row's expander: 0 none, 1 collapsed (▸), 2 expanded (▾).
constexpr int expander_image(dialog::row_expander expander) noexcept {
  return expander == dialog::row_expander::collapsed  ? 1
         : expander == dialog::row_expander::expanded ? 2
                                                      : 0;
}
constexpr dialog::row_expander expander_of_image(int image) noexcept {
  return image == 1   ? dialog::row_expander::collapsed
         : image == 2 ? dialog::row_expander::expanded
                      : dialog::row_expander::none;
}

// A list item keeps its state image's index in the bits of LVIS_STATEIMAGEMASK, from this bit on
// (what INDEXTOSTATEIMAGEMASK writes).
constexpr int kStateImageShift = 12;
constexpr UINT state_image_bits(int image) noexcept {
  return static_cast<UINT>(image) << kStateImageShift;
}
constexpr int state_image_of(UINT state) noexcept {
  return static_cast<int>((state & LVIS_STATEIMAGEMASK) >> kStateImageShift);
}
static_assert(state_image_bits(2) == INDEXTOSTATEIMAGEMASK(2));

// The small image of a tick box: ticked or not, and greyed when the user cannot change it.
constexpr int box_image(bool ticked, bool enabled) noexcept {
  return (enabled ? 0 : 2) + (ticked ? 1 : 0);
}
constexpr bool box_ticked(int image) noexcept { return image == 1 || image == 3; }
constexpr bool box_enabled(int image) noexcept { return image == 0 || image == 1; }

class outline_images {
 public:
  // `size`: the side of every picture, in pixels.
  explicit outline_images(int size);

  // Owned here: hand them to a list with LVS_SHAREIMAGELISTS.
  HIMAGELIST expanders() const noexcept { return expanders_.get(); }
  HIMAGELIST boxes() const noexcept { return boxes_.get(); }

 private:
  unique_image_list expanders_;
  unique_image_list boxes_;
};

}  // namespace tx::host::gui
