// The small pictures a tree-list draws in its first column: the expander of a row with rows under
// it (the list's state images: 1 collapsed, 2 expanded, 0 none) and the row's tick box (the list's
// small images, see box_image). Drawn once per list, at the list's icon size.
#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

namespace tx::host::gui {

constexpr int kExpanderNone = 0;
constexpr int kExpanderCollapsed = 1;
constexpr int kExpanderExpanded = 2;

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
  outline_images(const outline_images&) = delete;
  outline_images& operator=(const outline_images&) = delete;
  ~outline_images();

  // Owned here: hand them to a list with LVS_SHAREIMAGELISTS.
  HIMAGELIST expanders() const noexcept { return expanders_; }
  HIMAGELIST boxes() const noexcept { return boxes_; }

 private:
  HIMAGELIST expanders_ = nullptr;
  HIMAGELIST boxes_ = nullptr;
};

}  // namespace tx::host::gui
