#include "plugin/interface.h"

namespace tx {
namespace {

int root_query(void* self, const char* name, const void** table, void** object) noexcept {
  if (table != nullptr) *table = nullptr;
  if (object != nullptr) *object = nullptr;
  if (self == nullptr || name == nullptr || table == nullptr || object == nullptr) return -1;
  return static_cast<interface_impl*>(self)->query(name, table, object);
}

constexpr tx_root_interface root_interface{&root_query};

}  // namespace

const tx_root_interface* root_table() noexcept { return &root_interface; }

custom_pointer query_interface(const custom_pointer& any, const char* name) noexcept {
  if (!present(any)) return {};
  const auto root_fn = *static_cast<const tx_root_fn*>(any.table);
  if (root_fn == nullptr) return {};
  const custom_pointer root = root_fn(any.object);
  if (!present(root)) return {};
  const auto& root_iface = *static_cast<const tx_root_interface*>(root.table);
  if (root_iface.query == nullptr) return {};
  custom_pointer found{};
  root_iface.query(root.object, name, &found.table, &found.object);
  return present(found) ? found : custom_pointer{};
}

}  // namespace tx
