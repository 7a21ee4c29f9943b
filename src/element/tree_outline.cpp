#include "element/tree_outline.h"

#include "element/project_rename_widget.h"

namespace tx::element::detail {

const prjrename_tree_item* tree_outline::parent_node(custom_pointer parent) const noexcept {
  if (!present(parent)) return context_->root.get();
  return node_of(parent);
}

std::int32_t tree_outline::row_count(custom_pointer parent) {
  const prjrename_tree_item* node = parent_node(parent);
  return node != nullptr ? static_cast<std::int32_t>(node->visible_child_count()) : 0;
}

custom_pointer tree_outline::row(custom_pointer parent, std::int32_t index) {
  const prjrename_tree_item* node = parent_node(parent);
  if (node == nullptr || index < 0) return {};
  return tree_row(node->visible_child(static_cast<std::size_t>(index))).pointer();
}

bool tree_outline::selected(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return node != nullptr && node->is_selected();
}

void tree_outline::set_selected(custom_pointer row, bool on) {
  if (prjrename_tree_item* node = node_of(row)) node->set_selected(on);
}

bool tree_outline::expanded(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return node != nullptr && node->is_expanded();
}

void tree_outline::set_expanded(custom_pointer row, bool on) {
  if (prjrename_tree_item* node = node_of(row)) node->set_expanded_flag(on);
}

bool tree_outline::faulty(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return node != nullptr && !node->is_new_name_valid();
}

}  // namespace tx::element::detail
