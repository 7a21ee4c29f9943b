#include "plugin/modal_dialog_service.h"

namespace tx {

const modal_dialog_impl::table_type* modal_dialog_impl::table() noexcept {
  static constexpr table_type table{&root_slot<modal_dialog_impl>,
                                    slot<&modal_dialog_impl::set_view>};
  return &table;
}

const modal_dialog_service_impl::table_type* modal_dialog_service_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<modal_dialog_service_impl>,
      slot<&modal_dialog_service_impl::referent>,
      slot<&modal_dialog_service_impl::visit_dialogs>,
  };
  return &table;
}

}  // namespace tx
