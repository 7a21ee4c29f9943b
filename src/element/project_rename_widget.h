// project_rename_widget: the rename dialog's content and the rename context its parts share.
//
// It owns the element tree, the operation list, the name store with its history and the
// project handle, and lays out the operations panel (in a group box) above the element tree
// view. It lives for one run of the dialog: nothing of it survives to the next.
#pragma once

#include <functional>
#include <memory>

#include "element/operations_panel.h"
#include "element/tree_view.h"
#include "rename/operation_list.h"
#include "toolkit/grid_layout.h"
#include "toolkit/groupbox.h"
#include "tree/names.h"
#include "tree/tree_item.h"
#include "tx/host/handles.h"

namespace tx {

class project_rename_widget {
 public:
  project_rename_widget();
  project_rename_widget(const project_rename_widget&) = delete;
  project_rename_widget& operator=(const project_rename_widget&) = delete;

  // Takes the host's current project and builds the element tree from it.
  void open();
  // Validates and writes every pending name into the project; answers whether the names were
  // written and the dialog may close (warnings 129 and 132 otherwise, nothing written).
  bool accept();
  // Runs the redraw hook, when the tree view has installed one.
  void redraw() const;

  // The dialog's root layout: the operations group over the tree view.
  custom_pointer layout() noexcept { return layout_.pointer(); }

  // Declaration order is construction order: the state first, then the elements over it.
  std::unique_ptr<prjrename_tree_group> root;
  std::function<void()> change_callback;
  prjrename_operation_list operations;
  prjrename_names names;
  tx_prj* project = nullptr;

  element::prjrename_operations& operations_panel() noexcept { return operations_panel_; }
  element::prjrename_tree& tree_view() noexcept { return tree_view_; }

 private:
  element::prjrename_operations operations_panel_;
  toolkit::groupbox<1, 1> operations_group_;
  element::prjrename_tree tree_view_;
  toolkit::grid_layout<2, 1> layout_;
};

}  // namespace tx
