// tree_outline: the tree control of the rename dialog, answering every row question from the
// element tree's nodes.
//
// Rows are handles on nodes (outline_item<prjrename_tree_item*>); the root is never a row, so the
// top-level rows are the root's visible children. Selection and expansion are the nodes' own
// flags; a row is faulty when its element has a pending name that is empty.
#pragma once

#include "toolkit/outline.h"
#include "toolkit/outline_item.h"
#include "tree/tree_item.h"

namespace tx {
class project_rename_widget;
}

namespace tx::element::detail {

using tree_row = toolkit::outline_item<prjrename_tree_item*>;

// The node behind a row pair; null for a row without one.
inline prjrename_tree_item* node_of(custom_pointer row) noexcept {
  return tree_row::from(row).get();
}

class tree_outline final : public toolkit::outline {
 public:
  // The style bits the host's toolkit is given for this control.
  static constexpr std::uint32_t style_bits = 15;

  explicit tree_outline(project_rename_widget& context) noexcept
      : outline(style_bits), context_(&context) {}

  std::int32_t row_count(custom_pointer parent) override;
  custom_pointer row(custom_pointer parent, std::int32_t index) override;
  bool selected(custom_pointer row) override;
  void set_selected(custom_pointer row, bool selected) override;
  bool expanded(custom_pointer row) override;
  void set_expanded(custom_pointer row, bool expanded) override;
  bool faulty(custom_pointer row) override;

 private:
  // The node whose visible children are `parent`'s rows: the root for the null pair.
  const prjrename_tree_item* parent_node(custom_pointer parent) const noexcept;

  project_rename_widget* context_;
};

}  // namespace tx::element::detail
