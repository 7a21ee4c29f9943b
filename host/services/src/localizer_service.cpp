#include "tx_host/services/localizer_service.h"

#include "tx/services.h"

namespace tx::host {
namespace {

constexpr tx_localizer_service_interface_1 kTable{
    &root_slot,
    [](void* self, tx_custom_pointer client, tx_custom_pointer visitor) noexcept {
      object_of<localizer_service>(self).visit_localizer(client, visitor);
    },
};

constexpr interface_entry kInterfaces[]{{TX_LOCALIZER_SERVICE_INTERFACE_1, &kTable}};

}  // namespace

tx_custom_pointer localizer_service::pair() noexcept { return {&kTable, object_half()}; }

void localizer_service::visit_localizer(tx_custom_pointer client, tx_custom_pointer visitor) {
  const char16_t* module = call(client, &tx_localizer_client_interface_0::module_name);
  clients_.emplace_back(module != nullptr ? module : u"");
  call(visitor, &tx_localizer_visitor_interface_1::visit,
       present(handed_out_) ? handed_out_ : localizer_.pair());
}

std::span<const interface_entry> localizer_service::interfaces() const noexcept {
  return kInterfaces;
}

}  // namespace tx::host
