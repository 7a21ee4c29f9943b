#include "toolkit/tool.h"

namespace tx {

const action_tool_impl::table_type* action_tool_impl::table() noexcept {
  using I = action_tool_impl;
  static constexpr table_type table{
      &root_slot<I>,
      slot<&I::image>,
      slot<&I::caption>,
      slot<&I::hint>,
      slot<&I::extra_image_count>,
      slot<&I::extra_image>,
      slot<&I::enabled>,
      slot<&I::visible>,
      slot<&I::invoke>,
      slot<&I::set_view>,
  };
  return &table;
}

}  // namespace tx
