// button_box: the dialog's row of buttons ("tx_button_box_interface_2").
//
// Built from a bit mask: one button per set bit, in bit order; the known bits are captioned from
// the host's basic library (1, 2: string 101; 4, 8: 102; 16: 103; 32: 99; 64: 100), the others
// have no caption. A press answers whether the dialog may close:
//   accept (bits 1, 2, 32): runs the accept callback and closes only if it answers true; with
//     no accept callback the press goes to the generic callback;
//   close (bits 4, 8, 64): closes, nothing else;
//   help (bit 16): runs the help callback and stays open; with no help callback the press goes
//     to the generic callback;
//   any other button: the generic callback, given the button's bit, answers (true = close);
//     with no generic callback the dialog stays open;
//   a close request naming no button (index below zero, e.g. the frame's close box) closes.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "plugin/interface.h"
#include "tx/toolkit/button_box.h"

namespace tx {

class button_box_impl : public interface_impl {
 public:
  using table_type = tx_button_box_interface_2;
  static constexpr const char* interface_name = TX_BUTTON_BOX_INTERFACE_2;
  static const table_type* table() noexcept;

  virtual void set_host_reference(custom_pointer reference) = 0;
  virtual void set_second_host_reference(custom_pointer reference) = 0;
  virtual std::int32_t button_count() = 0;
  virtual bool caption(std::int32_t index, custom_pointer visitor) = 0;
  virtual bool shown(std::int32_t index) = 0;
  virtual bool press(std::int32_t index) = 0;

 protected:
  ~button_box_impl() = default;
};

namespace toolkit {

// One button: always shown; its caption's resource reference (negative: a string of the host's
// basic library) and its bit.
struct button_record {
  std::uint8_t shown = 1;
  std::int32_t caption = 0;
  std::uint32_t button = 0;
  friend bool operator==(const button_record&, const button_record&) = default;
};

class button_box final : public single_interface<button_box_impl> {
 public:
  // Answers whether the dialog may close after a press of the button with bit `button`.
  using press_callback = std::function<bool(std::uint32_t button)>;
  // Answers whether the accepted dialog may close.
  using accept_callback = std::function<bool()>;
  using help_callback = std::function<void()>;

  // One button per bit set in `mask`, in bit order.
  explicit button_box(std::uint32_t mask);

  void set_host_reference(custom_pointer reference) override { host_reference_ = reference; }
  void set_second_host_reference(custom_pointer reference) override {
    second_host_reference_ = reference;
  }
  std::int32_t button_count() override { return static_cast<std::int32_t>(buttons_.size()); }
  bool caption(std::int32_t index, custom_pointer visitor) override;
  bool shown(std::int32_t index) override;
  bool press(std::int32_t index) override;

  void set_generic(press_callback callback) { generic_ = std::move(callback); }
  void set_accept(accept_callback callback) { accept_ = std::move(callback); }
  void set_help(help_callback callback) { help_ = std::move(callback); }

  const std::vector<button_record>& buttons() const noexcept { return buttons_; }
  custom_pointer host_reference() const noexcept { return host_reference_; }
  custom_pointer second_host_reference() const noexcept { return second_host_reference_; }

 private:
  const button_record* at(std::int32_t index) const noexcept;
  bool generic(std::uint32_t button) const;

  std::vector<button_record> buttons_;
  press_callback generic_;
  accept_callback accept_;
  help_callback help_;
  custom_pointer host_reference_{};
  custom_pointer second_host_reference_{};
};

}  // namespace toolkit
}  // namespace tx
