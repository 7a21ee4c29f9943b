#include "resources/string_visitor.h"

namespace tx {

const string_visitor_impl::table_type* string_visitor_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<string_visitor_impl>,
      slot<&string_visitor_impl::visit>,
  };
  return &table;
}

}  // namespace tx
