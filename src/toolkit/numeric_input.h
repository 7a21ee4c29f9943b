// numeric_input<int>: an integer input with bounds.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "toolkit/control.h"
#include "tx/toolkit/controls.h"

namespace tx {

class integer_input_impl : public interface_impl {
 public:
  using table_type = tx_integer_input_interface_6;
  static constexpr const char* interface_name = TX_INTEGER_INPUT_INTERFACE_6;
  static const table_type* table() noexcept;

  virtual bool caption(custom_pointer visitor) = 0;
  virtual std::int32_t value() = 0;
  virtual void set_value(std::int32_t value) = 0;
  virtual std::int32_t minimum() = 0;
  virtual std::int32_t maximum() = 0;
  virtual bool enabled() = 0;
  virtual bool visible() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~integer_input_impl() = default;
};

namespace toolkit::detail {

template <class T, class I>
class numeric_input;

template <>
class numeric_input<int, integer_input_impl> : public control_base<integer_input_impl> {
 public:
  explicit numeric_input(std::int32_t caption = 0) : control_base(caption) {}

  std::int32_t value() override { return value_; }
  // The user entered a value; it is kept within the bounds.
  void set_value(std::int32_t v) override { take(value_, std::clamp(v, minimum_, maximum_)); }
  std::int32_t minimum() override { return minimum_; }
  std::int32_t maximum() override { return maximum_; }

  std::int32_t current() const noexcept { return value_; }
  // Sets the value from the plug-in's side, within the bounds.
  void assign_value(std::int32_t v) { assign(value_, std::clamp(v, minimum_, maximum_)); }
  void set_bounds(std::int32_t low, std::int32_t high) {
    minimum_ = std::min(low, high);
    maximum_ = std::max(low, high);
    assign_value(value_);
  }

 private:
  std::int32_t value_ = 0;
  std::int32_t minimum_ = std::numeric_limits<std::int32_t>::min();
  std::int32_t maximum_ = std::numeric_limits<std::int32_t>::max();
};

}  // namespace toolkit::detail

namespace toolkit {
template <class T>
using numeric_input = detail::numeric_input<T, integer_input_impl>;
}

}  // namespace tx
