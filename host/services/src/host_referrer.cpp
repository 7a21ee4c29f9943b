#include "tx_host/services/host_referrer.h"

#include "tx/referent.h"

namespace tx::host {
namespace {

constexpr tx_referrer_interface_1 kTable{
    &root_slot,
    [](void* self, tx_custom_pointer referent) noexcept {
      object_of<host_referrer>(self).released(referent);
    },
    [](void* self, tx_custom_pointer referent) noexcept {
      return object_of<host_referrer>(self).holds(referent);
    },
};

constexpr interface_entry kInterfaces[]{{TX_REFERRER_INTERFACE_1, &kTable}};

}  // namespace

host_referrer::~host_referrer() { release(); }

tx_custom_pointer host_referrer::pair() noexcept { return {&kTable, object_half()}; }

bool host_referrer::attach() {
  if (holding_ || !present(service_) || !present(referent_)) return holding_;
  if (table_of<tx_referent_interface_1>(referent_).attach == nullptr) return false;
  // Held before the call: the referent may already ask this referrer from inside attach.
  holding_ = true;
  call(referent_, &tx_referent_interface_1::attach, pair());
  return true;
}

void host_referrer::release() {
  if (!holding_) return;
  holding_ = false;
  call(referent_, &tx_referent_interface_1::detach, pair());
}

void host_referrer::released(tx_custom_pointer referent) noexcept {
  if (is_mine(referent)) holding_ = false;
}

bool host_referrer::holds(tx_custom_pointer referent) const noexcept {
  return holding_ && is_mine(referent);
}

std::span<const interface_entry> host_referrer::interfaces() const noexcept { return kInterfaces; }

}  // namespace tx::host
