// outline_item<T>: one row of an outline, bound to one T (a pointer into the plug-in's model,
// e.g. a tree node).
//
// A row is a handle, not an object: its pair ("tx_outline_item_interface_0") carries the bound
// pointer itself as its object half, so the outline keeps nothing per row and the handle stays
// valid as long as what it points to. The table belongs to T, so a pair of another row type,
// or one the host made up, is recognised and read as a row without content (a null T).
#pragma once

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "plugin/interface.h"
#include "tx/toolkit/outline.h"

namespace tx::toolkit {

template <class T>
requires std::is_pointer_v<T>
class outline_item {
 public:
  constexpr outline_item() noexcept = default;
  constexpr explicit outline_item(T value) noexcept : value_(value) {}

  // The row that `row` hands back; a row without content for a null pair or a pair that is not
  // a row of type T.
  static outline_item from(custom_pointer row) noexcept {
    if (row.table != &table || row.object == nullptr) return outline_item{};
    return outline_item{static_cast<T>(row.object)};
  }

  // The pair the host is given; the null pair for a row without content.
  custom_pointer pointer() const noexcept {
    if (value_ == nullptr) return {};
    return {&table, const_cast<void*>(static_cast<const void*>(value_))};
  }

  T get() const noexcept { return value_; }
  T operator->() const noexcept { return value_; }
  explicit operator bool() const noexcept { return value_ != nullptr; }
  friend bool operator==(const outline_item&, const outline_item&) = default;

 private:
  static tx_custom_pointer root(void* self) noexcept { return {&root_table, self}; }
  static std::uint64_t key(void* self) noexcept { return reinterpret_cast<std::uintptr_t>(self); }
  // The row's root answers its one interface, as every object's root does.
  static int query(void* self, const char* name, const void** found, void** object) noexcept {
    *found = nullptr;
    *object = nullptr;
    const int cmp = std::strcmp(name, TX_OUTLINE_ITEM_INTERFACE_0);
    if (cmp == 0) {
      *found = &table;
      *object = self;
    }
    return cmp;
  }

  static constexpr tx_outline_item_interface_0 table{&root, &key};
  static constexpr tx_root_interface root_table{&query};

  T value_ = nullptr;
};

}  // namespace tx::toolkit
