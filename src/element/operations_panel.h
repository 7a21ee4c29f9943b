// prjrename_operations: the upper part of the rename dialog, where the user picks one rename
// operation and sets its parameters.
//
// A selector lists the operations by their display names; below it a stack shows the chosen
// operation's own settings panel. The panel applies nothing: the tree's Execute tool runs every
// operation whose settings can change a name, whichever is in view. Switching keeps every
// operation's settings, since each operation owns its panel.
#pragma once

#include "plugin/interface.h"
#include "toolkit/dropdown.h"
#include "toolkit/event.h"
#include "toolkit/grid_layout.h"
#include "toolkit/labeled_element.h"
#include "toolkit/stack_layout.h"

namespace tx {
class project_rename_widget;
}

namespace tx::element {

class prjrename_operations {
 public:
  // Builds the selector from the widget's operation list and lays out the operations' panels.
  explicit prjrename_operations(project_rename_widget& owner);
  prjrename_operations(const prjrename_operations&) = delete;
  prjrename_operations& operator=(const prjrename_operations&) = delete;

  // Shows the panel of the operation the widget's `shown` names (the view is told only when
  // that changes).
  void refresh() noexcept;

  // The panel's element: its outer grid.
  custom_pointer pointer() noexcept { return layout_.pointer(); }
  toolkit::dropdown& selector() noexcept { return selector_; }
  const toolkit::stack_layout_ex& stack() const noexcept { return stack_; }

 private:
  void build_selector();
  void place_panels();

  project_rename_widget& owner_;
  toolkit::detail::labeled_element<toolkit::dropdown> selector_;
  // Entry 0 holds every panel at once (never in view while `shown` names an operation);
  // entry k + 1 is the panel of operation k.
  toolkit::stack_layout_ex stack_;
  // The selector over the stack, each spanning its row.
  toolkit::grid_span_layout<3, 2> layout_;
  // One cell per operation, in list order; an operation without a panel leaves its cell empty.
  toolkit::grid_layout<4, 1> panels_;
  events::connection selection_;
};

}  // namespace tx::element
