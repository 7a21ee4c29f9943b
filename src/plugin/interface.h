// The interface system as the plug-in implements it: custom pointers, the root table through
// which an object is asked for an interface by name, and the forwarding tables that turn a
// C call through a table slot into a virtual call on the object behind it.
//
// Every interface has an abstract implementation class with the suffix _impl. Its first two
// virtual operations are always query by name and root; the interface's own operations follow
// in table order. Each _impl class names its table type (`table_type`), its versioned interface
// name (`interface_name`) and returns its one table from `table()`. Tables are constant and live
// as long as the library. No exception crosses the boundary: every forwarder catches and
// answers its neutral value.
#pragma once

#include <cstring>
#include <type_traits>
#include <utility>

#include "tx/abi.h"

namespace tx {

using custom_pointer = tx_custom_pointer;

// A pair counts only when both halves are set.
constexpr bool present(const custom_pointer& cp) noexcept {
  return cp.table != nullptr && cp.object != nullptr;
}

constexpr bool same(const custom_pointer& a, const custom_pointer& b) noexcept {
  return a.table == b.table && a.object == b.object;
}

// The operations every implementation class starts with.
class interface_impl {
 public:
  // Compares `name` with each implemented interface's name; on a match writes that interface's
  // table and object. Returns the last comparison; the outs are left alone on a mismatch.
  virtual int query(const char* name, const void** table, void** object) noexcept = 0;
  // The root custom pointer of this object.
  virtual custom_pointer root() noexcept = 0;

 protected:
  interface_impl() = default;
  interface_impl(const interface_impl&) = default;
  interface_impl& operator=(const interface_impl&) = default;
  ~interface_impl() = default;
};

// The library's one root table: its query slot clears the outs, then asks the object.
const tx_root_interface* root_table() noexcept;

// The root custom pointer of an object, reached through one of its interface_impl bases.
inline custom_pointer root_of(interface_impl* object) noexcept { return {root_table(), object}; }

// The pair of `object` for interface I.
template <class I, class T>
custom_pointer pointer_to(T* object) noexcept {
  return {I::table(), static_cast<I*>(object)};
}

// On a name match, writes I's table and object; returns the comparison.
template <class I, class T>
int match(T* self, const char* name, const void** table, void** object) noexcept {
  const int cmp = std::strcmp(name, I::interface_name);
  if (cmp == 0) {
    *table = I::table();
    *object = static_cast<I*>(self);
  }
  return cmp;
}

// Asks any pair for interface `name` through its root; a null pair when absent.
custom_pointer query_interface(const custom_pointer& any, const char* name) noexcept;

// Asks any pair for interface I's table type by the name the traits give.
template <class Table>
struct interface_traits;  // specialised next to each table: static constexpr const char* name

template <class Table>
custom_pointer query_interface(const custom_pointer& any) noexcept {
  return query_interface(any, interface_traits<Table>::name);
}

// The table of a present pair, as its table type.
template <class Table>
const Table& table_of(const custom_pointer& cp) noexcept {
  return *static_cast<const Table*>(cp.table);
}

// Calls slot `Slot` of a pair with table type Table when the pair and the slot are present;
// otherwise does nothing and answers the neutral value of the slot's result.
template <class Table, class Slot, class... Args>
auto call(const custom_pointer& cp, Slot Table::*slot, Args&&... args) noexcept {
  using result = decltype((table_of<Table>(cp).*slot)(cp.object, std::forward<Args>(args)...));
  if (!present(cp) || !(table_of<Table>(cp).*slot)) {
    if constexpr (std::is_void_v<result>) {
      return;
    } else {
      return result{};
    }
  } else {
    return (table_of<Table>(cp).*slot)(cp.object, std::forward<Args>(args)...);
  }
}

namespace detail {

// A table slot that forwards to a member function of the implementation class, catching every
// exception (the neutral value is returned instead).
template <auto Member>
struct forward;

template <class I, class R, class... A, R (I::*Member)(A...)>
struct forward<Member> {
  static R call(void* self, A... args) noexcept {
    try {
      return (static_cast<I*>(self)->*Member)(args...);
    } catch (...) {
      if constexpr (!std::is_void_v<R>) return R{};
    }
  }
};

template <class I, class R, class... A, R (I::*Member)(A...) noexcept>
struct forward<Member> {
  static R call(void* self, A... args) noexcept {
    return (static_cast<I*>(self)->*Member)(args...);
  }
};

}  // namespace detail

// Slot 0 of interface I's table.
template <class I>
tx_custom_pointer root_slot(void* self) noexcept {
  return static_cast<I*>(self)->root();
}

// Slot n ≥ 1 of interface I's table: forwards to I's member function.
template <auto Member>
inline constexpr auto slot = &detail::forward<Member>::call;

}  // namespace tx

namespace tx {

// An object that implements exactly one interface I: answers I's name and nothing else.
template <class I>
class single_interface : public I {
 public:
  int query(const char* name, const void** table, void** object) noexcept override {
    return match<I>(this, name, table, object);
  }
  custom_pointer root() noexcept override { return root_of(static_cast<I*>(this)); }
  custom_pointer pointer() noexcept { return pointer_to<I>(this); }

 protected:
  single_interface() = default;
  ~single_interface() = default;
};

}  // namespace tx
