#include "plugin/client_factory.h"

namespace tx {

const service_registry_visitor_impl::table_type* service_registry_visitor_impl::table() noexcept {
  static constexpr table_type table{&root_slot<service_registry_visitor_impl>,
                                    slot<&service_registry_visitor_impl::visit>};
  return &table;
}

const localizer_service_visitor_impl::table_type* localizer_service_visitor_impl::table() noexcept {
  static constexpr table_type table{&root_slot<localizer_service_visitor_impl>,
                                    slot<&localizer_service_visitor_impl::visit>};
  return &table;
}

const localizer_visitor_impl::table_type* localizer_visitor_impl::table() noexcept {
  static constexpr table_type table{&root_slot<localizer_visitor_impl>,
                                    slot<&localizer_visitor_impl::visit>};
  return &table;
}

const localizer_client_impl::table_type* localizer_client_impl::table() noexcept {
  static constexpr table_type table{&root_slot<localizer_client_impl>,
                                    slot<&localizer_client_impl::module_name>};
  return &table;
}

namespace util {

client_factory::client_factory(const char16_t* module_name) : client_(module_name) {}

client_factory::~client_factory() { set_localizer({}); }

void client_factory::visit(custom_pointer registry, custom_pointer) {
  // Each visit reflects the registry as it is now: a localizer withdrawn is forgotten.
  set_localizer({});
  const custom_pointer services = query_interface<tx_service_registry_interface_0>(registry);
  call<tx_service_registry_interface_0>(services, &tx_service_registry_interface_0::visit_service,
                                        TX_LOCALIZER_NAMESPACE_KEY, registry_visitor_.pointer());
}

int client_factory::registry_visitor::query(const char* name, const void** table,
                                            void** object) noexcept {
  if (match<service_registry_visitor_impl>(this, name, table, object) == 0) return 0;
  return match<localizer_service_visitor_impl>(this, name, table, object);
}

custom_pointer client_factory::registry_visitor::root() noexcept {
  return root_of(static_cast<service_registry_visitor_impl*>(this));
}

void client_factory::registry_visitor::visit(const char16_t*, custom_pointer service) {
  owner_.ask_localizer_of(service);
}

void client_factory::registry_visitor::visit(custom_pointer service) {
  owner_.ask_localizer_of(service);
}

void client_factory::ask_localizer_of(custom_pointer service) {
  const custom_pointer localizers = query_interface<tx_localizer_service_interface_1>(service);
  call<tx_localizer_service_interface_1>(localizers,
                                         &tx_localizer_service_interface_1::visit_localizer,
                                         client_.pointer(), localizer_visitor_.pointer());
}

}  // namespace util
}  // namespace tx
