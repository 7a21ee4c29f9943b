// Stack layouts: several entries of which one is shown. stack_layout<N> has N fixed entries;
// stack_layout_ex grows as entries are added.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "toolkit/element.h"
#include "tx/toolkit/layout.h"

namespace tx {

class stack_layout_impl : public interface_impl {
 public:
  using table_type = tx_stack_layout_interface_67;
  static constexpr const char* interface_name = TX_STACK_LAYOUT_INTERFACE_67;
  static const table_type* table() noexcept;

  virtual std::int32_t entry_count() = 0;
  virtual std::int32_t shown() = 0;
  virtual void visit_entry(std::int32_t index, custom_pointer visitor) = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~stack_layout_impl() = default;
};

namespace toolkit {
namespace detail {

template <class Entries>
class stack_layout_base : public generic_element_impl<stack_layout_impl> {
 public:
  std::int32_t entry_count() override { return static_cast<std::int32_t>(entries_.size()); }
  std::int32_t shown() override { return shown_; }
  void visit_entry(std::int32_t index, custom_pointer visitor) override {
    if (index < 0 || static_cast<std::size_t>(index) >= entries_.size()) return;
    visit_element(visitor, entries_[static_cast<std::size_t>(index)]);
  }

  // Shows entry `index`; the view is told only when the index actually changes.
  void set_shown(std::int32_t index) noexcept {
    if (index == shown_) return;
    shown_ = index;
    notify(TX_CHANGED_LAYOUT);
  }
  custom_pointer entry(std::size_t index) const noexcept {
    return index < entries_.size() ? entries_[index] : custom_pointer{};
  }

 protected:
  stack_layout_base() = default;
  ~stack_layout_base() = default;

  Entries entries_{};
  std::int32_t shown_ = 0;
};

}  // namespace detail

template <int N>
class stack_layout final
    : public detail::stack_layout_base<std::array<custom_pointer, static_cast<std::size_t>(N)>> {
 public:
  stack_layout() = default;
  void set_entry(std::size_t index, custom_pointer element) noexcept {
    if (index >= this->entries_.size()) return;
    this->entries_[index] = present(element) ? element : custom_pointer{};
    this->notify(TX_CHANGED_LAYOUT);
  }
};

class stack_layout_ex final : public detail::stack_layout_base<std::vector<custom_pointer>> {
 public:
  stack_layout_ex() = default;
  // Appends an entry (an absent element leaves an empty entry); returns its index.
  std::size_t add(custom_pointer element) {
    entries_.push_back(present(element) ? element : custom_pointer{});
    notify(TX_CHANGED_LAYOUT);
    return entries_.size() - 1;
  }
};

}  // namespace toolkit
}  // namespace tx
