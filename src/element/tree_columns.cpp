#include "element/tree_columns.h"

#include <string>

#include "element/project_rename_widget.h"
#include "element/tree_outline.h"

namespace tx::element::detail {
namespace {

// "Старое имя" / "Old name" and "Новое имя" / "New name".
constexpr std::int32_t old_name_header = 50;
constexpr std::int32_t new_name_header = 51;
// The width the host's toolkit is given for both text columns.
constexpr std::int32_t column_size = 20;

}  // namespace

name_column::name_column(project_rename_widget& context)
    : string_outline_column(u"tx_prjrename_tree_name_column", old_name_header, column_size),
      context_(&context) {}

bool name_column::text(custom_pointer row, custom_pointer visitor) {
  const prjrename_tree_item* node = node_of(row);
  if (node == nullptr) return false;
  bool given = false;
  node->get_caption([&](const char16_t* text) { given = visit_text(visitor, text); });
  return given;
}

modified_name_column::modified_name_column(project_rename_widget& context)
    : string_outline_column(u"tx_prjrename_tree_modified_name_column", new_name_header,
                            column_size),
      context_(&context) {}

bool modified_name_column::text(custom_pointer row, custom_pointer visitor) {
  const prjrename_tree_item* node = node_of(row);
  if (node == nullptr) return false;
  bool given = false;
  node->get_new_name([&](const char16_t* text) { given = visit_text(visitor, text); });
  return given;
}

bool modified_name_column::editable(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return node != nullptr && node->has_entity();
}

bool modified_name_column::emphasized(custom_pointer row) {
  const prjrename_tree_item* node = node_of(row);
  return node != nullptr && node->is_changed_last();
}

void modified_name_column::edit(custom_pointer row, std::u16string_view text) {
  const prjrename_tree_item* node = node_of(row);
  if (node == nullptr) return;
  const std::u16string name(text);
  node->set_new_name(context_->names, name.c_str());
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
