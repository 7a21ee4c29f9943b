// assisted_input: a text input whose list offers earlier entries, most recent first.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/control.h"
#include "tx/toolkit/controls.h"

namespace tx {

class assisted_input_impl : public interface_impl {
 public:
  using table_type = tx_assisted_input_interface_3;
  static constexpr const char* interface_name = TX_ASSISTED_INPUT_INTERFACE_3;
  static const table_type* table() noexcept;

  virtual bool caption(custom_pointer visitor) = 0;
  virtual void text(custom_pointer visitor) = 0;
  virtual void set_text(const char16_t* text) = 0;
  virtual std::int32_t history_count() = 0;
  virtual bool history_item(std::int32_t index, custom_pointer visitor) = 0;
  virtual bool enabled() = 0;
  virtual bool visible() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~assisted_input_impl() = default;
};

namespace toolkit {

class assisted_input : public detail::control_base<assisted_input_impl> {
 public:
  explicit assisted_input(std::int32_t caption = 0) : control_base(caption) {}

  void text(custom_pointer visitor) override;
  // The user typed or picked a text; a null text is no text at all and changes nothing.
  void set_text(const char16_t* text) override {
    if (text != nullptr) take(text_, std::u16string(text));
  }
  std::int32_t history_count() override { return static_cast<std::int32_t>(history_.size()); }
  bool history_item(std::int32_t index, custom_pointer visitor) override;

  const std::u16string& value() const noexcept { return text_; }
  // Sets the text from the plug-in's side.
  void assign_text(std::u16string text) { assign(text_, std::move(text)); }
  // Keeps `entry` in the history: an equal entry (exact comparison) is removed, the entry goes
  // to the front, and the view is told that the list changed. The list has no length limit.
  void remember(const std::u16string& entry);
  const std::vector<std::u16string>& history() const noexcept { return history_; }

 private:
  std::u16string text_;
  std::vector<std::u16string> history_;
};

}  // namespace toolkit
}  // namespace tx
