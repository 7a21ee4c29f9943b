// The dialog's elements as the host reads them once: what each element is, where it sits in its
// parent grid, a grid's lines with their least sizes and stretch flags, and the children in the
// order the dialog shows them. The text renderer, the script commands, the window's builder and
// its layout all work from this description; it is read again (a layout's part of it) only when
// the plug-in tells that a layout changed. Whether an element is shown and enabled is its state,
// asked live, not described.
#pragma once

#include <cstdint>
#include <vector>

#include "tx/abi.h"
#include "tx_host/dialog/elements.h"

namespace tx::host::dialog {

// A grid's row or column as the plug-in sets it: its least size (pixels) and whether it
// takes spare room.
struct grid_line {
  std::int32_t minimum = 0;
  bool stretch = false;
};

// Where an element sits in its parent grid: the first row and column it covers, and how many.
struct grid_cell {
  std::int32_t row = 0;
  std::int32_t column = 0;
  std::int32_t row_span = 1;
  std::int32_t column_span = 1;
};

struct element_node {
  dialog::element element;
  grid_cell cell;
  // A grid's rows and columns; empty for any other element.
  std::vector<grid_line> rows;
  std::vector<grid_line> columns;
  // How deep the element stands (the root at 0): nesting stops at limits::element_depth.
  int depth = 0;
  // A grid's cells row by row, a group box's or the docker's content, a stack's entries (the
  // shown one only, or all, as the description's scope says).
  std::vector<element_node> children;
};

enum class walk_scope {
  // What the dialog shows: a stack's shown entry only, no hidden element.
  shown,
  // Every element the plug-in describes: all entries of every stack, hidden ones too.
  all,
};

// Reads `root` (any element pair) and everything in it. Hidden elements are described too; the
// scope says which entries of a stack are.
element_node describe(tx_custom_pointer root, walk_scope scope);
// Reads `node`'s grid lines and children again, as `describe` read them.
void describe_children(element_node& node, walk_scope scope);

// What a walk reports, in the order the dialog shows it.
class element_listener {
 public:
  // A group box starts (its content follows) and ends.
  virtual void enter_group(const element&) {}
  virtual void leave_group(const element&) {}
  // A grid or a stack, before its cells or entries.
  virtual void layout(const element&) {}
  // Any other element: a field, a label, a picture, an outline, a toolbar, or an unknown one.
  virtual void leaf(const element&) {}

 protected:
  element_listener() = default;
  ~element_listener() = default;
};

// Walks a description depth first; in scope `shown`, hidden elements (asked now) are skipped.
void walk(const element_node& root, element_listener& listener, walk_scope scope);
// Describes `root` in `scope` and walks it.
void walk(tx_custom_pointer root, element_listener& listener, walk_scope scope);

}  // namespace tx::host::dialog
