// The window's layout: the dialog's elements as a tree of nodes (a grid's cells, a group box's
// or a stack's content, a native control at each leaf), sized and placed in dialog units from the
// controls' requests and the rows, columns, spans, minimums and stretch flags the plug-in sets on
// its grids. A grid's columns (rows) are as wide (high) as their widest (highest) cell; spare room
// goes to the lines that stretch and hold content that grows, else to those whose content grows,
// so the outline takes what the window gains when it is resized. The arithmetic is the portable
// grid_tracks (tx_host/window_logic); here it is fed from the nodes and applied to their windows.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/gui/control.h"
#include "win32_handles.h"

namespace tx::host::gui {

// The gap between controls, in dialog units.
inline constexpr int layout_gap = 4;

// One element of the dialog as the window shows it.
struct window_node {
  // The element as described (what it is, its cell in its parent grid, a grid's lines), without
  // children: those are the node's own. Read again when the plug-in tells that the layout
  // changed.
  dialog::element_node described;
  const dialog::element& element() const noexcept { return described.element; }
  // A group box's frame: destroyed after the controls it frames.
  unique_window frame;
  // A grid's cells or a group box's and a stack's content.
  std::vector<std::unique_ptr<window_node>> children;
  std::unique_ptr<control> leaf;  // a field, label, outline, toolbar
  // The leaf's own child windows of the dialog, in the order they were made (not owned: the
  // leaf owns them): what the tab order arranges.
  std::vector<HWND> windows;
  bool shown = true;
};

// The smallest comfortable size of `node` and whether it takes extra room.
size_request request(const window_node& node, const metrics& m);
// Moves `node`'s windows into `area` (client coordinates of the dialog).
void place(window_node& node, const RECT& area, const metrics& m);

}  // namespace tx::host::gui
