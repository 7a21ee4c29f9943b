#include "plugin/utility_service.h"

namespace tx {

const utility_impl::table_type* utility_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<utility_impl>,          slot<&utility_impl::caption>,
      slot<&utility_impl::image>,        slot<&utility_impl::set_host_handle>,
      slot<&utility_impl::is_available>, slot<&utility_impl::run>,
      slot<&utility_impl::reserved>,     slot<&utility_impl::set_host_reference>,
  };
  return &table;
}

const utility_service_impl::table_type* utility_service_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<utility_service_impl>,
      slot<&utility_service_impl::referent>,
      slot<&utility_service_impl::visit_utilities>,
  };
  return &table;
}

}  // namespace tx
