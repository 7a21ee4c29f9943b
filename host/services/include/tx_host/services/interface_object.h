// The host's side of the interface system: every host object that crosses the plug-in boundary
// derives from interface_object, lists the interfaces it answers (name and table) and is handed
// out as {table, object} pairs whose object half is always the interface_object base. Tables
// are constant and live as long as the program.
#pragma once

#include <span>

#include "tx/abi.h"

namespace tx::host {

// A pair counts only when both halves are set.
constexpr bool present(const tx_custom_pointer& cp) noexcept {
  return cp.table != nullptr && cp.object != nullptr;
}

constexpr bool same(const tx_custom_pointer& a, const tx_custom_pointer& b) noexcept {
  return a.table == b.table && a.object == b.object;
}

// One interface an object answers: its versioned name and its table.
struct interface_entry {
  const char* name;
  const void* table;
};

class interface_object {
 public:
  interface_object(const interface_object&) = delete;
  interface_object& operator=(const interface_object&) = delete;
  virtual ~interface_object() = default;

  // This object's root pair ({tx_root_interface, object}).
  tx_custom_pointer root() noexcept;
  // This object's pair for interface `name`, or a null pair when it does not answer it.
  tx_custom_pointer query(const char* name) noexcept;
  // Compares `name` with each answered interface in order; on a match writes its table and
  // this object. Returns the last comparison (0 on a match).
  int query(const char* name, const void** table, void** object) noexcept;

  // The object half of every pair of this object.
  void* object_half() noexcept { return this; }

 protected:
  interface_object() = default;

  // The interfaces this object answers, in the order they are compared.
  virtual std::span<const interface_entry> interfaces() const noexcept = 0;
};

// Slot 0 of every host table: the object's root pair.
tx_custom_pointer root_slot(void* self) noexcept;

// The object behind the object half of a host pair, as its concrete class.
template <class T>
T& object_of(void* self) noexcept {
  return static_cast<T&>(*static_cast<interface_object*>(self));
}

// Asks any pair, through its root, for interface `name`; a null pair when it is not answered.
tx_custom_pointer query(const tx_custom_pointer& any, const char* name) noexcept;

// The table of a present pair, as its table type.
template <class Table>
const Table& table_of(const tx_custom_pointer& cp) noexcept {
  return *static_cast<const Table*>(cp.table);
}

// Calls `slot` of a pair whose table is `Table` when the pair and the slot are present;
// otherwise calls nothing and answers the slot's neutral value (false, 0, a null pair).
template <class Table, class Slot, class... Args>
auto call(const tx_custom_pointer& cp, Slot Table::*slot, Args... args) noexcept {
  using result = decltype((table_of<Table>(cp).*slot)(cp.object, args...));
  if (!present(cp) || (table_of<Table>(cp).*slot) == nullptr) return result();
  return (table_of<Table>(cp).*slot)(cp.object, args...);
}

}  // namespace tx::host
