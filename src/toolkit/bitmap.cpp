#include "toolkit/bitmap.h"

namespace tx {

const bitmap_impl::table_type* bitmap_impl::table() noexcept {
  using I = bitmap_impl;
  static constexpr table_type table{&root_slot<I>, slot<&I::pixels>, slot<&I::hint>,
                                    slot<&I::set_view>};
  return &table;
}

}  // namespace tx
