#include "tx_host/services/service_registry.h"

#include "tx/services.h"

namespace tx::host {
namespace {

constexpr tx_service_registry_interface_0 kTable{
    &root_slot,
    [](void* self, const char16_t* key, tx_custom_pointer visitor) noexcept {
      object_of<service_registry>(self).visit_service(key, visitor);
    },
};

constexpr interface_entry kInterfaces[]{{TX_SERVICE_REGISTRY_INTERFACE_0, &kTable}};

}  // namespace

tx_custom_pointer service_registry::pair() noexcept { return {&kTable, object_half()}; }

void service_registry::set_service(std::u16string key, tx_custom_pointer service) {
  if (present(service)) {
    services_.insert_or_assign(std::move(key), service);
  } else {
    services_.erase(key);
  }
}

void service_registry::visit_service(const char16_t* key, tx_custom_pointer visitor) {
  if (key == nullptr) return;
  const std::u16string wanted(key);
  requested_keys_.push_back(wanted);
  tx_custom_pointer found{};
  if (wanted == TX_LOCALIZER_NAMESPACE_KEY) {
    if (localizer_enabled_) found = localizer_service_.pair();
  } else if (const auto it = services_.find(wanted); it != services_.end()) {
    found = it->second;
  }
  // `found` is a copy: the visitor may change the registry while it is called.
  if (!present(found)) return;
  // The localizer service goes to a visitor made for it when the visitor is one.
  if (wanted == TX_LOCALIZER_NAMESPACE_KEY) {
    const tx_custom_pointer typed = host::query(visitor, TX_LOCALIZER_SERVICE_VISITOR_INTERFACE_1);
    if (present(typed)) {
      call(typed, &tx_localizer_service_visitor_interface_1::visit, found);
      return;
    }
  }
  call(visitor, &tx_service_registry_visitor_interface_0::visit, wanted.c_str(), found);
}

std::span<const interface_entry> service_registry::interfaces() const noexcept {
  return kInterfaces;
}

}  // namespace tx::host
