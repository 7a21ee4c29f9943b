#include "toolkit/toolbar.h"

namespace tx {

const tool_set_impl::table_type* tool_set_impl::table() noexcept {
  using I = tool_set_impl;
  static constexpr table_type table{&root_slot<I>, slot<&I::visit_tools>, slot<&I::find_tool>};
  return &table;
}

const toolbar_impl::table_type* toolbar_impl::table() noexcept {
  using I = toolbar_impl;
  static constexpr table_type table{&root_slot<I>, slot<&I::tool_set>, slot<&I::set_view>};
  return &table;
}

namespace toolkit::detail {

bool host_tools_visitor::tool(const char16_t* id, custom_pointer tool) {
  if (!taking_) return false;
  taking_ = call<tx_tools_visitor_interface_0>(host_, &tx_tools_visitor_interface_0::visit_tool, id,
                                               tool);
  return taking_;
}

void host_tools_visitor::group() {
  if (!taking_) return;
  call<tx_tools_visitor_interface_0>(host_, &tx_tools_visitor_interface_0::new_group);
}

}  // namespace toolkit::detail
}  // namespace tx
