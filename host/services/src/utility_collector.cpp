#include "tx_host/services/utility_collector.h"

#include "tx/utility.h"

namespace tx::host {
namespace {

constexpr tx_utility_visitor_interface_2 kTable{
    &root_slot,
    [](void* self, const char16_t* id, tx_custom_pointer utility) noexcept {
      object_of<utility_collector>(self).visit(id, utility);
    },
};

constexpr interface_entry kInterfaces[]{{TX_UTILITY_VISITOR_INTERFACE_2, &kTable}};

}  // namespace

tx_custom_pointer utility_collector::pair() noexcept { return {&kTable, object_half()}; }

void utility_collector::visit(const char16_t* id, tx_custom_pointer utility) {
  if (!present(utility)) return;
  commands_.push_back({id != nullptr ? id : u"", utility});
}

std::span<const interface_entry> utility_collector::interfaces() const noexcept {
  return kInterfaces;
}

}  // namespace tx::host
