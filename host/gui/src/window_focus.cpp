// The dialog's tab order and its focus. The dialog manager moves through a dialog's child windows
// in their order among siblings, so the window puts them in the order a person reads the dialog:
// a grid's cells row by row and left to right, each leaf's windows as it made them (a caption
// before its box), then the buttons; the group boxes' frames, which take no focus, last, under
// what they frame. The order is made again whenever a panel is rebuilt, whose new controls would
// otherwise come after everything else.
#include <algorithm>

#include "dialog_window.h"

namespace tx::host::gui {
namespace {

void reading_order(const window_node& node, std::vector<HWND>& order, std::vector<HWND>& frames) {
  if (node.frame) frames.push_back(node.frame.get());
  order.insert(order.end(), node.windows.begin(), node.windows.end());
  std::vector<const window_node*> children;
  children.reserve(node.children.size());
  for (const auto& child : node.children) children.push_back(child.get());
  std::stable_sort(children.begin(), children.end(),
                   [](const window_node* a, const window_node* b) {
                     const dialog::grid_cell& x = a->described.cell;
                     const dialog::grid_cell& y = b->described.cell;
                     return x.row != y.row ? x.row < y.row : x.column < y.column;
                   });
  for (const window_node* child : children) reading_order(*child, order, frames);
}

}  // namespace

void dialog_window::order_tabs() {
  if (root_ == nullptr) return;
  std::vector<HWND> order;
  std::vector<HWND> frames;
  reading_order(*root_, order, frames);
  for (const auto& shown : buttons_shown_) order.push_back(shown.first);
  order.insert(order.end(), frames.begin(), frames.end());
  HWND above = HWND_TOP;
  for (HWND w : order) {
    SetWindowPos(w, above, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    above = w;
  }
}

void dialog_window::keep_focus() {
  HWND focused = GetFocus();
  if (focused != nullptr && focused != window_ && IsChild(window_, focused)) return;
  // The first control in the tab order, as a dialog opens.
  if (HWND first = GetNextDlgTabItem(window_, nullptr, FALSE); first != nullptr) {
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
  }
}

}  // namespace tx::host::gui
