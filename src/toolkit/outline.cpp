#include "toolkit/outline.h"

#include <cstddef>

namespace tx {

const outline_impl::table_type* outline_impl::table() noexcept {
  using I = outline_impl;
  static constexpr table_type table{
      &root_slot<I>,      slot<&I::style>,        slot<&I::row_count>,    slot<&I::row>,
      slot<&I::selected>, slot<&I::set_selected>, slot<&I::expanded>,     slot<&I::set_expanded>,
      slot<&I::faulty>,   slot<&I::column_count>, slot<&I::visit_column>, slot<&I::visit_checks>,
      slot<&I::set_view>,
  };
  return &table;
}

namespace toolkit {

std::int32_t outline::column_count() { return static_cast<std::int32_t>(columns_.size()); }

void outline::visit_column(std::int32_t index, custom_pointer visitor) {
  if (index < 0 || static_cast<std::size_t>(index) >= columns_.size()) return;
  visit_element(visitor,
                pointer_to<string_outline_column_impl>(columns_[static_cast<std::size_t>(index)]));
}

void outline::visit_checks(custom_pointer visitor) {
  if (checks_ == nullptr) return;
  visit_element(visitor, pointer_to<outline_checks_impl>(checks_));
}

void outline::add_column(string_outline_column_impl& column) {
  columns_.push_back(&column);
  notify(TX_CHANGED_ROWS);
}

}  // namespace toolkit
}  // namespace tx
