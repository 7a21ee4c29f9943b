#include "element/tree_columns.h"

#include <string>

#include "element/project_rename_widget.h"
#include "element/tree_outline.h"
#include "resources/string_visitor.h"

namespace tx::element::detail {
namespace {

// "Старое имя" / "Old name" and "Новое имя" / "New name".
constexpr std::int32_t old_name_header = 50;
constexpr std::int32_t new_name_header = 51;
// The width the host's toolkit is given for both text columns.
constexpr std::int32_t column_size = 20;

}  // namespace

name_column::name_column(project_rename_widget& context, shown names)
    : string_outline_column(names == shown::new_name ? u"tx_prjrename_tree_modified_name_column"
                                                     : u"tx_prjrename_tree_name_column",
                            names == shown::new_name ? new_name_header : old_name_header,
                            column_size),
      context_(&context),
      names_(names) {}

bool name_column::text(custom_pointer row, custom_pointer visitor) {
  const prjrename_tree_item* node = node_of(row);
  if (node == nullptr) return false;
  bool given = false;
  const prjrename_sink give = [&](const char16_t* text) { given = visit_text(visitor, text); };
  if (names_ == shown::new_name) {
    node->get_new_name(give);
  } else {
    node->get_caption(give);
  }
  return given;
}

bool name_column::editable(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return names_ == shown::new_name && node != nullptr && node->has_entity();
}

bool name_column::emphasized(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return names_ == shown::new_name && node != nullptr && node->is_changed_last();
}

void name_column::edit(custom_pointer row, std::u16string_view text) {
  if (!editable(row)) return;
  const std::u16string name(text);
  node_of(row)->set_new_name(context_->names, name.c_str());
}

bool check_column::checked(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return node != nullptr && node->is_checked();
}

bool check_column::enabled(custom_pointer row) { return node_of(row) != nullptr; }

void check_column::check(custom_pointer row, bool on) {
  prjrename_tree_item* node = node_of(row);
  if (node == nullptr) return;
  if (node->is_selected()) {
    if (context_->root) context_->root->set_check_selected(on);
    context_->redraw();
  } else {
    node->set_checked(on);
  }
}

}  // namespace tx::element::detail
