#include "tx_host/services/interface_object.h"

#include <cstring>

namespace tx::host {
namespace {

int root_query(void* self, const char* name, const void** table, void** object) noexcept {
  if (table != nullptr) *table = nullptr;
  if (object != nullptr) *object = nullptr;
  if (self == nullptr || name == nullptr || table == nullptr || object == nullptr) return -1;
  return static_cast<interface_object*>(self)->query(name, table, object);
}

constexpr tx_root_interface kRootTable{&root_query};

}  // namespace

tx_custom_pointer interface_object::root() noexcept { return {&kRootTable, object_half()}; }

int interface_object::query(const char* name, const void** table, void** object) noexcept {
  int comparison = -1;
  for (const interface_entry& entry : interfaces()) {
    comparison = std::strcmp(name, entry.name);
    if (comparison == 0) {
      *table = entry.table;
      *object = object_half();
      break;
    }
  }
  return comparison;
}

tx_custom_pointer interface_object::query(const char* name) noexcept {
  tx_custom_pointer found{};
  query(name, &found.table, &found.object);
  return present(found) ? found : tx_custom_pointer{};
}

tx_custom_pointer root_slot(void* self) noexcept {
  return self != nullptr ? static_cast<interface_object*>(self)->root() : tx_custom_pointer{};
}

tx_custom_pointer query(const tx_custom_pointer& any, const char* name) noexcept {
  if (!present(any) || name == nullptr) return {};
  const tx_root_fn root_fn = *static_cast<const tx_root_fn*>(any.table);
  if (root_fn == nullptr) return {};
  const tx_custom_pointer root = root_fn(any.object);
  if (!present(root)) return {};
  const auto& root_table = table_of<tx_root_interface>(root);
  if (root_table.query == nullptr) return {};
  tx_custom_pointer found{};
  root_table.query(root.object, name, &found.table, &found.object);
  return present(found) ? found : tx_custom_pointer{};
}

}  // namespace tx::host
