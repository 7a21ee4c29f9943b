#include "toolkit/outline_columns.h"

#include <utility>

#include "resources/string_visitor.h"

namespace tx {

const outline_checks_impl::table_type* outline_checks_impl::table() noexcept {
  using I = outline_checks_impl;
  static constexpr table_type table{&root_slot<I>, slot<&I::checked>, slot<&I::set_checked>,
                                    slot<&I::enabled>, slot<&I::set_view>};
  return &table;
}

const string_outline_column_impl::table_type* string_outline_column_impl::table() noexcept {
  using I = string_outline_column_impl;
  static constexpr table_type table{
      &root_slot<I>,        slot<&I::id>,       slot<&I::header>,
      slot<&I::size>,       slot<&I::text>,     slot<&I::editable>,
      slot<&I::emphasized>, slot<&I::set_text>, slot<&I::set_view>,
  };
  return &table;
}

namespace toolkit {

bool outline_checks::enabled(custom_pointer) { return true; }

void outline_checks::set_checked(custom_pointer row, bool checked) {
  if (!enabled(row)) return;
  check(row, checked);
  changed();
}

string_outline_column::string_outline_column(std::u16string id, std::int32_t header,
                                             std::int32_t size)
    : id_(std::move(id)), header_(header), size_(size) {}

bool string_outline_column::id(custom_pointer visitor) {
  return !id_.empty() && visit_text(visitor, id_.c_str());
}

bool string_outline_column::header(custom_pointer visitor) { return load_text(header_, visitor); }

void string_outline_column::set_text(custom_pointer row, const char16_t* text) {
  if (text == nullptr || !editable(row)) return;
  edit(row, text);
  edited();
}

}  // namespace toolkit
}  // namespace tx
