// label: a line of text, held as a resource reference.
#pragma once

#include <cstdint>

#include "toolkit/element.h"
#include "tx/toolkit/controls.h"

namespace tx {

class label_impl : public interface_impl {
 public:
  using table_type = tx_label_interface_2;
  static constexpr const char* interface_name = TX_LABEL_INTERFACE_2;
  static const table_type* table() noexcept;

  virtual bool text(custom_pointer visitor) = 0;
  virtual bool visible() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~label_impl() = default;
};

namespace toolkit {

class label final : public detail::generic_element_impl<label_impl> {
 public:
  explicit label(std::int32_t text = 0) : text_(text) {}
  bool text(custom_pointer visitor) override { return load_text(text_, visitor); }
  bool visible() override { return visible_; }
  void set_visible(bool on) noexcept {
    if (visible_ == on) return;
    visible_ = on;
    notify(TX_CHANGED_STATE);
  }

 private:
  std::int32_t text_;
  bool visible_ = true;
};

}  // namespace toolkit
}  // namespace tx
