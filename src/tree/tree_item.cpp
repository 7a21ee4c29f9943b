#include "tree/tree_item.h"

#include "tree/names.h"

namespace tx {

void prjrename_tree_item::collect_checked(uuid_set& set) const {
  if (!is_null(uuid) && checked && is_shown()) set.push_back(uuid);
}

void prjrename_tree_item::get_new_name(const prjrename_sink& sink) const {
  if (sink) sink(new_name.c_str());
}

void prjrename_tree_item::set_expanded(bool value, bool selected_only) {
  if (!selected_only || selected) expanded = value;
}

void prjrename_tree_item::apply_check(std::int32_t mode) noexcept {
  switch (mode) {
    case check_tick:
      checked = true;
      break;
    case check_untick:
      checked = false;
      break;
    case check_invert:
      checked = !checked;
      break;
    default:
      break;
  }
}

void prjrename_tree_item::set_check(std::int32_t mode, bool selected_only) {
  if (!selected_only || selected) apply_check(mode);
}

void prjrename_tree_item::set_check_selected(bool value) {
  if (selected) checked = value;
}

void prjrename_tree_item::set_new_name(prjrename_names& names, const char16_t* text) const {
  if (is_null(uuid)) return;
  names.set_name(uuid, text != nullptr ? text : u"");
}

void prjrename_tree_item::refresh(const prjrename_names& names) {
  const prjrename_name* entry = is_null(uuid) ? nullptr : names.find(uuid);
  new_name = entry != nullptr ? entry->new_name : prjrename_text();
  has_new_name = entry != nullptr;
  changed_last = entry != nullptr && names.changed_last(*entry);
}

void prjrename_tree_group::collect_checked(uuid_set& set) const {
  prjrename_tree_item::collect_checked(set);
  for (const auto& child : children) child->collect_checked(set);
}

prjrename_tree_item* prjrename_tree_group::visible_child(std::size_t i) const {
  return i < visible.size() ? children[visible[i]].get() : nullptr;
}

void prjrename_tree_group::set_expanded(bool value, bool selected_only) {
  const bool whole = !selected_only || selected;
  if (whole) expanded = value;
  for (const auto& child : children) child->set_expanded(value, !whole);
}

void prjrename_tree_group::set_check(std::int32_t mode, bool selected_only) {
  const bool whole = !selected_only || selected;
  if (whole) apply_check(mode);
  for (const auto& child : children) child->set_check(mode, !whole);
}

void prjrename_tree_group::set_check_selected(bool value) {
  prjrename_tree_item::set_check_selected(value);
  for (const auto& child : children) child->set_check_selected(value);
}

bool prjrename_tree_group::any_selected() const {
  if (selected) return true;
  for (const auto& child : children) {
    if (child->any_selected()) return true;
  }
  return false;
}

void prjrename_tree_group::rebuild_visible() {
  visible.clear();
  for (std::size_t i = 0; i < children.size(); ++i) {
    if (children[i]->is_shown()) visible.push_back(static_cast<std::uint32_t>(i));
    children[i]->rebuild_visible();
  }
}

void prjrename_tree_group::refresh(const prjrename_names& names) {
  prjrename_tree_item::refresh(names);
  for (const auto& child : children) child->refresh(names);
}

prjrename_tree_item* prjrename_tree_group::add(std::unique_ptr<prjrename_tree_item> child) {
  children.push_back(std::move(child));
  return children.back().get();
}

void prjrename_tree_group::clear_children() noexcept {
  children.clear();
  visible.clear();
}

}  // namespace tx
