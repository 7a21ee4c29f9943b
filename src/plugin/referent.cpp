#include "plugin/referent.h"

#include <stdexcept>

namespace tx {

const referent_impl::table_type* referent_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<referent_impl>,         slot<&referent_impl::attach>,
      slot<&referent_impl::detach>,      slot<&referent_impl::principal>,
      slot<&referent_impl::referrer_at>,
  };
  return &table;
}

const referrer_impl::table_type* referrer_impl::table() noexcept {
  static constexpr table_type table{
      &root_slot<referrer_impl>,
      slot<&referrer_impl::released>,
      slot<&referrer_impl::holds>,
  };
  return &table;
}

objbase::~objbase() {
  if (destroyed_flag_ != nullptr) *destroyed_flag_ = true;
}

std::size_t objbase::attach(custom_pointer referrer) {
  if (referrers_.size() >= referrers_.max_size()) throw std::length_error("list<T> too long");
  referrers_.push_back(referrer);
  return referrers_.size();
}

void objbase::detach(custom_pointer referrer) {
  for (auto it = referrers_.begin(); it != referrers_.end(); ++it) {
    if (same(*it, referrer)) {
      referrers_.erase(it);
      break;
    }
  }
  if (!busy_) {
    busy_ = true;
    bool destroyed = false;
    bool* const outer_flag = destroyed_flag_;
    destroyed_flag_ = &destroyed;
    bool held = false;
    // The list may change while its entries are asked: ask a copy.
    const std::vector<custom_pointer> asked = referrers_;
    const custom_pointer self = pointer_to<referent_impl>(this);
    for (const custom_pointer& entry : asked) {
      if (!present(entry)) {
        held = true;
        break;
      }
      const bool answer =
          call<tx_referrer_interface_1>(entry, &tx_referrer_interface_1::holds, self);
      if (destroyed) return;  // a nested detach destroyed this object
      if (answer) {
        held = true;
        break;
      }
    }
    destroyed_flag_ = outer_flag;
    busy_ = false;
    if (held) return;
  }
  release_all();
}

void objbase::release_all() noexcept {
  const custom_pointer self = pointer_to<referent_impl>(this);
  const std::vector<custom_pointer> told = referrers_;
  for (const custom_pointer& entry : told) {
    if (present(entry))
      call<tx_referrer_interface_1>(entry, &tx_referrer_interface_1::released, self);
  }
  destroy();
}

custom_pointer objbase::referrer_at(std::size_t index) {
  return index < referrers_.size() ? referrers_[index] : custom_pointer{};
}

namespace detail {

void ref_base::released(custom_pointer) noexcept {
  held_ = {};
  referent_ = {};
}

void ref_base::reset(custom_pointer held) noexcept {
  if (present(held) && same(held, held_)) return;
  const custom_pointer old_referent = referent_;
  held_ = {};
  referent_ = {};
  const custom_pointer self = pointer_to<referrer_impl>(this);
  if (present(old_referent)) {
    call<tx_referent_interface_1>(old_referent, &tx_referent_interface_1::detach, self);
  }
  if (!present(held)) return;
  held_ = held;
  referent_ = query_interface<tx_referent_interface_1>(held);
  call<tx_referent_interface_1>(referent_, &tx_referent_interface_1::attach, self);
}

}  // namespace detail
}  // namespace tx
