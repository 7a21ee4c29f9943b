// The layout interfaces' tables.
#include "toolkit/grid_layout.h"
#include "toolkit/groupbox.h"
#include "toolkit/stack_layout.h"

namespace tx {

const grid_layout_impl::table_type* grid_layout_impl::table() noexcept {
  using I = grid_layout_impl;
  static constexpr table_type table{
      &root_slot<I>,
      slot<&I::spacing>,
      slot<&I::column_count>,
      slot<&I::row_count>,
      slot<&I::reserved_4>,
      slot<&I::reserved_5>,
      slot<&I::column_stretch>,
      slot<&I::row_stretch>,
      slot<&I::column_minimum>,
      slot<&I::row_minimum>,
      slot<&I::column_natural>,
      slot<&I::row_natural>,
      slot<&I::visit_cell>,
      slot<&I::set_view>,
      slot<&I::visit_grid_cell>,
  };
  return &table;
}

const groupbox_impl::table_type* groupbox_impl::table() noexcept {
  using I = groupbox_impl;
  static constexpr table_type table{
      &root_slot<I>,           slot<&I::caption>, slot<&I::second_text>,
      slot<&I::visit_content>, slot<&I::enabled>, slot<&I::set_view>,
  };
  return &table;
}

const stack_layout_impl::table_type* stack_layout_impl::table() noexcept {
  using I = stack_layout_impl;
  static constexpr table_type table{
      &root_slot<I>,         slot<&I::entry_count>, slot<&I::shown>,
      slot<&I::visit_entry>, slot<&I::set_view>,
  };
  return &table;
}

}  // namespace tx
