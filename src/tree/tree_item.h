// The element tree's nodes: one per project element, as the project arranges them.
//
// prjrename_tree_item is a leaf and the common base; prjrename_tree_group owns its children
// (destroyed with it) and keeps the indices of the shown ones. A node carries the element's
// uuid (null for the root and the collections, which are not renameable), its view state
// (expanded, selected, checked) and its pending new name as `refresh` found it in the name
// store: a handle to the store's own text, which never changes or moves while the store lives
// (and the store outlives every tree built under it), so a refresh allocates nothing. The old
// name is never cached: it is read from the host whenever the view asks.
// Actions reach the tree through the root and travel down: set_expanded and set_check apply to
// a selected group's whole subtree, and otherwise only pass the call down; set_check_selected
// lets every node decide by its own `selected` flag.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "tree/text_arena.h"
#include "tree/uuid.h"

namespace tx {

class prjrename_names;

// Receives one zero-terminated wide string (a caption or a new name).
using prjrename_sink = std::function<void(const char16_t*)>;

// Check modes of set_check.
inline constexpr std::int32_t check_tick = 0;
inline constexpr std::int32_t check_untick = 1;
inline constexpr std::int32_t check_invert = 2;

class prjrename_tree_item {
 public:
  prjrename_tree_item() = default;
  prjrename_tree_item(const prjrename_tree_item&) = delete;
  prjrename_tree_item& operator=(const prjrename_tree_item&) = delete;
  virtual ~prjrename_tree_item() = default;

  // Appends this node's uuid to `set` when it is renameable, ticked and shown; a group then
  // asks its children.
  virtual void collect_checked(uuid_set& set) const;
  virtual std::size_t visible_child_count() const { return 0; }
  virtual prjrename_tree_item* visible_child(std::size_t) const { return nullptr; }
  // The element's current caption, as the host or the build knows it.
  virtual void get_caption(const prjrename_sink&) const {}
  virtual void get_new_name(const prjrename_sink& sink) const;
  virtual bool is_shown() const { return true; }
  virtual void set_expanded(bool value, bool selected_only);
  virtual void set_check(std::int32_t mode, bool selected_only);
  virtual void set_check_selected(bool value);
  virtual bool any_selected() const { return selected; }
  virtual bool has_entity() const { return !is_null(uuid); }
  // Asks the name store to make `text` the element's new name (one undoable step).
  virtual void set_new_name(prjrename_names& names, const char16_t* text) const;
  virtual void rebuild_visible() {}
  // Takes this node's pending name and latest-step mark from the name store.
  virtual void refresh(const prjrename_names& names);

  bool is_expanded() const noexcept { return expanded; }
  bool is_selected() const noexcept { return selected; }
  bool is_checked() const noexcept { return checked; }
  void set_expanded_flag(bool on) noexcept { expanded = on; }
  void set_selected(bool on) noexcept { selected = on; }
  void set_checked(bool on) noexcept { checked = on; }
  bool is_changed_last() const noexcept { return changed_last; }
  // False when the element has a pending name that is empty (the view marks the row faulty).
  bool is_new_name_valid() const noexcept { return !has_new_name || !new_name.empty(); }

  // The five flags share one word after the handles: a leaf takes 32 bytes, a layer node 88.
  tx_uuid uuid = null_uuid;
  prjrename_text new_name;  // the store's text; empty when there is no entry
  bool has_new_name = false;
  bool expanded = true;
  bool selected = false;
  bool checked = false;
  bool changed_last = false;

 protected:
  // The leaf rules, which groups apply to themselves.
  void apply_check(std::int32_t mode) noexcept;
};

class prjrename_tree_group : public prjrename_tree_item {
 public:
  void collect_checked(uuid_set& set) const override;
  std::size_t visible_child_count() const override { return visible.size(); }
  prjrename_tree_item* visible_child(std::size_t i) const override;
  void set_expanded(bool value, bool selected_only) override;
  void set_check(std::int32_t mode, bool selected_only) override;
  void set_check_selected(bool value) override;
  bool any_selected() const override;
  void rebuild_visible() override;
  void refresh(const prjrename_names& names) override;

  // Appends a child it then owns; returns it.
  prjrename_tree_item* add(std::unique_ptr<prjrename_tree_item> child);
  void clear_children() noexcept;

  std::vector<std::uint32_t> visible;
  std::vector<std::unique_ptr<prjrename_tree_item>> children;
};

}  // namespace tx
