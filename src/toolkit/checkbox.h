// checkbox: a box the user ticks, with its text and a second, longer text.
#pragma once

#include <cstdint>

#include "toolkit/control.h"
#include "tx/toolkit/controls.h"

namespace tx {

class checkbox_impl : public interface_impl {
 public:
  using table_type = tx_checkbox_interface_2;
  static constexpr const char* interface_name = TX_CHECKBOX_INTERFACE_2;
  static const table_type* table() noexcept;

  virtual bool caption(custom_pointer visitor) = 0;
  virtual bool second_text(custom_pointer visitor) = 0;
  virtual bool checked() = 0;
  virtual void set_checked(bool checked) = 0;
  virtual bool enabled() = 0;
  virtual bool visible() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~checkbox_impl() = default;
};

namespace toolkit {

class checkbox : public detail::control_base<checkbox_impl> {
 public:
  explicit checkbox(std::int32_t caption = 0, std::int32_t second_text = 0)
      : control_base(caption), second_text_(second_text) {}

  bool second_text(custom_pointer visitor) override { return load_text(second_text_, visitor); }
  bool checked() override { return checked_; }
  // The user ticked or cleared the box.
  void set_checked(bool on) override { take(checked_, on); }

  bool is_checked() const noexcept { return checked_; }
  // Sets the box from the plug-in's side.
  void check(bool on) { assign(checked_, on); }

 private:
  std::int32_t second_text_;
  bool checked_ = false;
};

}  // namespace toolkit
}  // namespace tx
