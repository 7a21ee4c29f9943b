#include "tx_host/services/publish_sink.h"

#include "tx/bundle.h"
#include "tx/modal_dialog.h"
#include "tx/utility.h"

namespace tx::host {
namespace {

constexpr tx_service_visitor_interface_0 kFactoryTable{
    &root_slot,
    [](void* self, const char16_t* key, tx_custom_pointer factory) noexcept {
      object_of<publish_sink>(self).visit_factory(key, factory);
    },
};

constexpr tx_utility_service_visitor_interface_2 kUtilityTable{
    &root_slot,
    [](void* self, tx_custom_pointer service) noexcept {
      object_of<publish_sink>(self).visit_utility_service(service);
    },
};

constexpr tx_modal_dialog_service_visitor_interface_102 kDialogTable{
    &root_slot,
    [](void* self, tx_custom_pointer service) noexcept {
      object_of<publish_sink>(self).visit_dialog_service(service);
    },
};

constexpr interface_entry kInterfaces[]{
    {TX_SERVICE_VISITOR_INTERFACE_0, &kFactoryTable},
    {TX_UTILITY_SERVICE_VISITOR_INTERFACE_2, &kUtilityTable},
    {TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102, &kDialogTable},
};

// Attaches a new hold to `service` and keeps it in `holds`; nothing when it cannot be held.
void hold(std::vector<std::unique_ptr<host_referrer>>& holds, tx_custom_pointer service,
          tx_custom_pointer referent) {
  auto referrer = std::make_unique<host_referrer>(service, referent);
  if (referrer->attach()) holds.push_back(std::move(referrer));
}

std::vector<tx_custom_pointer> held_services(
    const std::vector<std::unique_ptr<host_referrer>>& holds) {
  std::vector<tx_custom_pointer> services;
  for (const auto& referrer : holds) {
    if (referrer->holding()) services.push_back(referrer->service());
  }
  return services;
}

}  // namespace

tx_custom_pointer publish_sink::service_visitor() noexcept {
  return {&kFactoryTable, object_half()};
}

void publish_sink::visit_factory(const char16_t* key, tx_custom_pointer factory) {
  if (!present(factory)) return;
  factories_.push_back({key != nullptr ? key : u"", factory});
}

void publish_sink::visit_utility_service(tx_custom_pointer service) {
  hold(utility_services_, service, call(service, &tx_utility_service_interface_2::referent));
}

void publish_sink::visit_dialog_service(tx_custom_pointer service) {
  hold(dialog_services_, service, call(service, &tx_modal_dialog_service_interface_102::referent));
}

std::vector<tx_custom_pointer> publish_sink::utility_services() const {
  return held_services(utility_services_);
}

std::vector<tx_custom_pointer> publish_sink::dialog_services() const {
  return held_services(dialog_services_);
}

void publish_sink::release_all() {
  // Moved out first: a detach calls into the plug-in, which may publish again meanwhile.
  std::vector<std::unique_ptr<host_referrer>> utilities = std::move(utility_services_);
  std::vector<std::unique_ptr<host_referrer>> dialogs = std::move(dialog_services_);
  utility_services_.clear();
  dialog_services_.clear();
  factories_.clear();
  for (const auto& referrer : utilities) referrer->release();
  for (const auto& referrer : dialogs) referrer->release();
}

std::span<const interface_entry> publish_sink::interfaces() const noexcept { return kInterfaces; }

}  // namespace tx::host
