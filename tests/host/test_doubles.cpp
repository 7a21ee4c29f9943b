#include "test_doubles.h"

#include "tx/modal_dialog.h"
#include "tx/referent.h"
#include "tx/services.h"
#include "tx/utility.h"
#include "tx/visitors.h"

namespace tx::host::testing {
namespace {

constexpr tx_service_registry_visitor_interface_0 kRegistryVisitorTable{
    &root_slot, [](void* self, const char16_t* key, tx_custom_pointer service) noexcept {
      object_of<registry_visitor_double>(self).visits.push_back({key, service});
    }};
constexpr interface_entry kRegistryVisitorInterfaces[]{
    {TX_SERVICE_REGISTRY_VISITOR_INTERFACE_0, &kRegistryVisitorTable}};

constexpr tx_localizer_service_visitor_interface_1 kLocalizerVisitorTable{
    &root_slot, [](void* self, tx_custom_pointer localizer) noexcept {
      object_of<localizer_visitor_double>(self).localizers.push_back(localizer);
    }};
constexpr interface_entry kLocalizerVisitorInterfaces[]{
    {TX_LOCALIZER_SERVICE_VISITOR_INTERFACE_1, &kLocalizerVisitorTable}};

constexpr tx_localizer_client_interface_0 kClientTable{
    &root_slot, [](void* self) noexcept { return object_of<client_double>(self).module.c_str(); }};
constexpr interface_entry kClientInterfaces[]{{TX_LOCALIZER_CLIENT_INTERFACE_0, &kClientTable}};

// The command of service_double: the object half is the service itself.
constexpr tx_utility_interface_4 kCommandTable{
    &root_slot,
    [](void*, tx_custom_pointer visitor) noexcept {
      call(visitor, &tx_string_visitor_interface_0::visit, u"caption");
      return true;
    },
    [](void*, tx_custom_pointer) noexcept { return false; },
    [](void*, std::uint64_t) noexcept {},
    [](void*) noexcept { return true; },
    [](void*) noexcept {},
    [](void*) noexcept {},
    [](void*, tx_custom_pointer) noexcept {},
};

tx_custom_pointer referent_of(void* self) noexcept {
  return object_of<service_double>(self).referent_pair();
}

constexpr tx_utility_service_interface_2 kUtilityServiceTable{
    &root_slot, &referent_of, [](void* self, tx_custom_pointer visitor) noexcept {
      call(visitor, &tx_utility_visitor_interface_2::visit, u"cmd",
           tx_custom_pointer{&kCommandTable, self});
    }};

constexpr tx_modal_dialog_service_interface_102 kDialogServiceTable{
    &root_slot, &referent_of, [](void*, tx_custom_pointer) noexcept {}};

constexpr tx_referent_interface_1 kReferentTable{
    &root_slot,
    [](void* self, tx_custom_pointer referrer) noexcept {
      return object_of<service_double>(self).attach(referrer);
    },
    [](void* self, tx_custom_pointer referrer) noexcept {
      object_of<service_double>(self).detach(referrer);
    },
    [](void* self) noexcept { return object_of<service_double>(self).utility_pair(); },
    [](void* self, std::size_t index) noexcept {
      const auto& referrers = object_of<service_double>(self).referrers;
      return index < referrers.size() ? referrers[index] : tx_custom_pointer{};
    },
};

constexpr interface_entry kServiceInterfaces[]{
    {TX_UTILITY_SERVICE_INTERFACE_2, &kUtilityServiceTable},
    {TX_MODAL_DIALOG_SERVICE_INTERFACE_102, &kDialogServiceTable},
    {TX_REFERENT_INTERFACE_1, &kReferentTable},
};

}  // namespace

tx_custom_pointer registry_visitor_double::pair() noexcept {
  return {&kRegistryVisitorTable, object_half()};
}
std::span<const interface_entry> registry_visitor_double::interfaces() const noexcept {
  return kRegistryVisitorInterfaces;
}

tx_custom_pointer localizer_visitor_double::pair() noexcept {
  return {&kLocalizerVisitorTable, object_half()};
}
std::span<const interface_entry> localizer_visitor_double::interfaces() const noexcept {
  return kLocalizerVisitorInterfaces;
}

tx_custom_pointer client_double::pair() noexcept { return {&kClientTable, object_half()}; }
std::span<const interface_entry> client_double::interfaces() const noexcept {
  return kClientInterfaces;
}

tx_custom_pointer service_double::utility_pair() noexcept {
  return {&kUtilityServiceTable, object_half()};
}
tx_custom_pointer service_double::dialog_pair() noexcept {
  return {&kDialogServiceTable, object_half()};
}
tx_custom_pointer service_double::referent_pair() noexcept {
  return with_referent_ ? tx_custom_pointer{&kReferentTable, object_half()} : tx_custom_pointer{};
}

std::size_t service_double::attach(tx_custom_pointer referrer) {
  referrers.push_back(referrer);
  return referrers.size();
}

void service_double::detach(tx_custom_pointer referrer) {
  ++detaches;
  for (auto it = referrers.begin(); it != referrers.end(); ++it) {
    if (same(*it, referrer)) {
      referrers.erase(it);
      break;
    }
  }
  holders_at_last_detach = 0;
  for (const bool holds : ask_holds()) holders_at_last_detach += holds ? 1 : 0;
}

void service_double::destroy() {
  const std::vector<tx_custom_pointer> told = std::move(referrers);
  referrers.clear();
  for (const tx_custom_pointer& referrer : told) {
    call(referrer, &tx_referrer_interface_1::released, referent_pair());
  }
}

std::vector<bool> service_double::ask_holds() {
  std::vector<bool> answers;
  const std::vector<tx_custom_pointer> asked = referrers;
  for (const tx_custom_pointer& referrer : asked) {
    answers.push_back(call(referrer, &tx_referrer_interface_1::holds, referent_pair()));
  }
  return answers;
}

std::span<const interface_entry> service_double::interfaces() const noexcept {
  return kServiceInterfaces;
}

}  // namespace tx::host::testing
