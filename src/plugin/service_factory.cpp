#include "plugin/service_factory.h"

#include <algorithm>
#include <stdexcept>

namespace tx {

const service_factory_impl::table_type* service_factory_impl::table() noexcept {
  static constexpr table_type table{&root_slot<service_factory_impl>,
                                    slot<&service_factory_impl::visit>};
  return &table;
}

factory_registry& factory_registry::instance() {
  static factory_registry registry;
  return registry;
}

void factory_registry::add(basic_service_factory_impl* factory) {
  if (entries_.size() >= entries_.max_size()) throw std::length_error("list<T> too long");
  entries_.push_back(factory);
}

void factory_registry::remove(const basic_service_factory_impl* factory) noexcept {
  std::erase(entries_, factory);
}

registered_factory::registered_factory(const char16_t* key) : basic_service_factory_impl(key) {
  factory_registry::instance().add(this);
}

registered_factory::~registered_factory() { factory_registry::instance().remove(this); }

}  // namespace tx
