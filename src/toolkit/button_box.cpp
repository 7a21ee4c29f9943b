#include "toolkit/button_box.h"

#include <array>
#include <cstddef>

#include "toolkit/element.h"

namespace tx {

const button_box_impl::table_type* button_box_impl::table() noexcept {
  using I = button_box_impl;
  static constexpr table_type table{
      &root_slot<I>,
      slot<&I::set_host_reference>,
      slot<&I::set_second_host_reference>,
      slot<&I::button_count>,
      slot<&I::caption>,
      slot<&I::shown>,
      slot<&I::press>,
  };
  return &table;
}

namespace toolkit {
namespace {

enum class role { accept, close, help };

struct known_button {
  std::uint32_t bit;
  std::int32_t caption;
  role what;
};

// The known bits in bit order, with the host's caption string and what a press does.
constexpr std::array<known_button, 7> known{{
    {1, -101, role::accept},
    {2, -101, role::accept},
    {4, -102, role::close},
    {8, -102, role::close},
    {16, -103, role::help},
    {32, -99, role::accept},
    {64, -100, role::close},
}};

const known_button* find(std::uint32_t bit) noexcept {
  for (const known_button& k : known) {
    if (k.bit == bit) return &k;
  }
  return nullptr;
}

}  // namespace

button_box::button_box(std::uint32_t mask) {
  for (int shift = 0; shift < 32; ++shift) {
    const std::uint32_t bit = std::uint32_t{1} << shift;
    if ((mask & bit) == 0) continue;
    const known_button* k = find(bit);
    buttons_.push_back({1, k != nullptr ? k->caption : 0, bit});
  }
}

const button_record* button_box::at(std::int32_t index) const noexcept {
  if (index < 0 || static_cast<std::size_t>(index) >= buttons_.size()) return nullptr;
  return &buttons_[static_cast<std::size_t>(index)];
}

bool button_box::caption(std::int32_t index, custom_pointer visitor) {
  const button_record* b = at(index);
  return b != nullptr && load_text(b->caption, visitor);
}

bool button_box::shown(std::int32_t index) {
  const button_record* b = at(index);
  return b != nullptr && b->shown != 0;
}

bool button_box::press(std::int32_t index) {
  if (index < 0) return true;
  const button_record* b = at(index);
  if (b == nullptr) return false;
  const std::uint32_t bit = b->button;
  const known_button* k = find(bit);
  if (k == nullptr) return generic(bit);
  switch (k->what) {
    case role::accept:
      if (const accept_callback accept = accept_; accept) return accept();
      return generic(bit);
    case role::close:
      return true;
    case role::help:
      if (const help_callback help = help_; help) {
        help();
        return false;
      }
      return generic(bit);
  }
  return false;
}

bool button_box::generic(std::uint32_t button) const {
  const press_callback callback = generic_;
  return callback ? callback(button) : false;
}

}  // namespace toolkit
}  // namespace tx
