#include "tx_host/services/string_collector.h"

#include "tx/visitors.h"

namespace tx::host {
namespace {

constexpr tx_string_visitor_interface_0 kTable{
    &root_slot,
    [](void* self, const char16_t* text) noexcept {
      object_of<string_collector>(self).visit(text);
    },
};

constexpr interface_entry kInterfaces[]{{TX_STRING_VISITOR_INTERFACE_0, &kTable}};

}  // namespace

tx_custom_pointer string_collector::pair() noexcept { return {&kTable, object_half()}; }

void string_collector::visit(const char16_t* text) {
  text_ = text != nullptr ? text : u"";
  ++visits_;
}

std::span<const interface_entry> string_collector::interfaces() const noexcept {
  return kInterfaces;
}

}  // namespace tx::host
