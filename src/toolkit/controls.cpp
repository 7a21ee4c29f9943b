// The control interfaces' tables, and the controls' out-of-line members.
#include <algorithm>

#include "resources/string_visitor.h"
#include "toolkit/assisted_input.h"
#include "toolkit/checkbox.h"
#include "toolkit/dropdown.h"
#include "toolkit/label.h"
#include "toolkit/numeric_input.h"

namespace tx {

const label_impl::table_type* label_impl::table() noexcept {
  using I = label_impl;
  static constexpr table_type table{&root_slot<I>, slot<&I::text>, slot<&I::visible>,
                                    slot<&I::set_view>};
  return &table;
}

const checkbox_impl::table_type* checkbox_impl::table() noexcept {
  using I = checkbox_impl;
  static constexpr table_type table{
      &root_slot<I>,         slot<&I::caption>, slot<&I::second_text>, slot<&I::checked>,
      slot<&I::set_checked>, slot<&I::enabled>, slot<&I::visible>,     slot<&I::set_view>,
  };
  return &table;
}

const dropdown_impl::table_type* dropdown_impl::table() noexcept {
  using I = dropdown_impl;
  static constexpr table_type table{
      &root_slot<I>,       slot<&I::caption>,  slot<&I::item_count>,
      slot<&I::item_text>, slot<&I::selected>, slot<&I::select>,
      slot<&I::enabled>,   slot<&I::visible>,  slot<&I::set_view>,
  };
  return &table;
}

const integer_input_impl::table_type* integer_input_impl::table() noexcept {
  using I = integer_input_impl;
  static constexpr table_type table{
      &root_slot<I>,       slot<&I::caption>, slot<&I::value>,
      slot<&I::set_value>, slot<&I::minimum>, slot<&I::maximum>,
      slot<&I::enabled>,   slot<&I::visible>, slot<&I::set_view>,
  };
  return &table;
}

const assisted_input_impl::table_type* assisted_input_impl::table() noexcept {
  using I = assisted_input_impl;
  static constexpr table_type table{
      &root_slot<I>,      slot<&I::caption>,       slot<&I::text>,
      slot<&I::set_text>, slot<&I::history_count>, slot<&I::history_item>,
      slot<&I::enabled>,  slot<&I::visible>,       slot<&I::set_view>,
  };
  return &table;
}

namespace toolkit {

void assisted_input::text(custom_pointer visitor) { visit_text(visitor, text_.c_str()); }

bool assisted_input::history_item(std::int32_t index, custom_pointer visitor) {
  if (index < 0 || static_cast<std::size_t>(index) >= history_.size()) return false;
  visit_text(visitor, history_[static_cast<std::size_t>(index)].c_str());
  return true;
}

void assisted_input::remember(const std::u16string& entry) {
  if (const auto it = std::find(history_.begin(), history_.end(), entry); it != history_.end()) {
    history_.erase(it);
  }
  history_.insert(history_.begin(), entry);
  notify(TX_CHANGED_ITEMS);
}

}  // namespace toolkit
}  // namespace tx
