// Drop-down lists. dropdown_base holds the items (texts as resource references) and the
// selected index (-1: none); dropdown is chosen by index, dropdownex<E> carries a value of E
// with each item.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "toolkit/control.h"
#include "tx/toolkit/controls.h"

namespace tx {

class dropdown_impl : public interface_impl {
 public:
  using table_type = tx_dropdown_interface_3;
  static constexpr const char* interface_name = TX_DROPDOWN_INTERFACE_3;
  static const table_type* table() noexcept;

  virtual bool caption(custom_pointer visitor) = 0;
  virtual std::int32_t item_count() = 0;
  virtual bool item_text(std::int32_t index, custom_pointer visitor) = 0;
  virtual std::int32_t selected() = 0;
  virtual void select(std::int32_t index) = 0;
  virtual bool enabled() = 0;
  virtual bool visible() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~dropdown_impl() = default;
};

namespace toolkit {

class dropdown_base : public detail::control_base<dropdown_impl> {
 public:
  std::int32_t item_count() override { return static_cast<std::int32_t>(items_.size()); }
  bool item_text(std::int32_t index, custom_pointer visitor) override {
    return valid(index) && load_text(items_[static_cast<std::size_t>(index)], visitor);
  }
  std::int32_t selected() override { return selected_; }
  // The user picked an item (or none, -1); an index outside the list is ignored.
  void select(std::int32_t index) override {
    if (index == -1 || valid(index)) take(selected_, index);
  }

  std::int32_t selection() const noexcept { return selected_; }
  // Selects from the plug-in's side (-1: none); an index outside the list is ignored.
  void set_selection(std::int32_t index) {
    if (index == -1 || valid(index)) assign(selected_, index);
  }
  std::size_t size() const noexcept { return items_.size(); }

 protected:
  explicit dropdown_base(std::int32_t caption) : control_base(caption) {}
  ~dropdown_base() = default;

  // Appends an item with the text of `reference`; returns its index.
  std::int32_t append(std::int32_t reference) {
    items_.push_back(reference);
    notify(TX_CHANGED_ITEMS);
    return static_cast<std::int32_t>(items_.size() - 1);
  }
  bool valid(std::int32_t index) const noexcept {
    return index >= 0 && static_cast<std::size_t>(index) < items_.size();
  }

 private:
  std::vector<std::int32_t> items_;
  std::int32_t selected_ = -1;
};

// Items chosen by index.
class dropdown : public dropdown_base {
 public:
  explicit dropdown(std::int32_t caption = 0) : dropdown_base(caption) {}
  std::int32_t add_item(std::int32_t text) { return append(text); }
};

// Items that each carry a value of E.
template <class E>
class dropdownex : public dropdown_base {
 public:
  explicit dropdownex(std::int32_t caption = 0) : dropdown_base(caption) {}
  std::int32_t add_item(std::int32_t text, E value) {
    values_.push_back(value);
    return append(text);
  }
  // The selected item's value; nothing when no item is selected.
  std::optional<E> value() const noexcept {
    const std::int32_t i = selection();
    if (i < 0 || static_cast<std::size_t>(i) >= values_.size()) return std::nullopt;
    return values_[static_cast<std::size_t>(i)];
  }
  // Selects the first item carrying `value`; returns whether there is one.
  bool select_value(E value) {
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (values_[i] == value) {
        set_selection(static_cast<std::int32_t>(i));
        return true;
      }
    }
    return false;
  }

 private:
  std::vector<E> values_;
};

}  // namespace toolkit
}  // namespace tx
