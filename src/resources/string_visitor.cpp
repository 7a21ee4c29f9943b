#include "resources/string_visitor.h"

namespace tx {

const string_visitor_impl::table_type* string_visitor_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<string_visitor_impl>,
      slot<&string_visitor_impl::visit>,
  };
  return &table;
}

bool visit_text(custom_pointer visitor, const char16_t* text) noexcept {
  call<tx_string_visitor_interface_0>(visitor, &tx_string_visitor_interface_0::visit, text);
  return true;
}

}  // namespace tx
