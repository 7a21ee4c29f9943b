// prjrename_tree: the lower part of the rename dialog — a toolbar over the tree control that
// shows every project element with its tick, its old name and its pending new name.
//
// The view owns no element data: the outline and its columns answer from the nodes, and every
// change goes through the nodes or the name store, after which the outline is told to reload.
// The name store's `changed` refreshes the nodes from the store and redraws.
#pragma once

#include "element/tree_columns.h"
#include "element/tree_outline.h"
#include "element/tree_tools.h"
#include "toolkit/event.h"
#include "toolkit/grid_layout.h"
#include "toolkit/toolbar.h"

namespace tx {
class project_rename_widget;
}

namespace tx::element {

class prjrename_tree {
 public:
  using toolbar_type = toolkit::toolbar<detail::tree_tools, toolbar_impl, void>;

  // Builds the toolbar, the outline with its columns and check boxes, and the layout, and
  // installs the redraw hook into `context`.
  explicit prjrename_tree(project_rename_widget& context);
  prjrename_tree(const prjrename_tree&) = delete;
  prjrename_tree& operator=(const prjrename_tree&) = delete;

  // The view's element: the toolbar over the outline.
  custom_pointer pointer() noexcept { return layout_.pointer(); }
  toolbar_type& toolbar() noexcept { return toolbar_; }
  detail::tree_outline& outline() noexcept { return outline_; }

 private:
  project_rename_widget& context_;
  toolbar_type toolbar_;
  detail::tree_outline outline_;
  detail::name_column names_;
  detail::name_column new_names_;
  detail::check_column checks_;
  toolkit::grid_layout<2, 1> layout_;
  events::connection refresh_;
};

}  // namespace tx::element
