// groupbox<1, 1>: a frame with a caption around one inner grid_layout<1, 1>.
#pragma once

#include <cstdint>

#include "toolkit/grid_layout.h"

namespace tx {

class groupbox_impl : public interface_impl {
 public:
  using table_type = tx_groupbox_interface_92;
  static constexpr const char* interface_name = TX_GROUPBOX_INTERFACE_92;
  static const table_type* table() noexcept;

  virtual bool caption(custom_pointer visitor) = 0;
  virtual bool second_text(custom_pointer visitor) = 0;
  virtual void visit_content(custom_pointer visitor) = 0;
  virtual bool enabled() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~groupbox_impl() = default;
};

namespace toolkit {
namespace detail {

template <class Derived, class Content>
class groupbox_base : public generic_element_impl<groupbox_impl> {
 public:
  bool caption(custom_pointer visitor) override { return load_text(caption_, visitor); }
  bool second_text(custom_pointer visitor) override { return load_text(second_text_, visitor); }
  void visit_content(custom_pointer visitor) override {
    visit_element(visitor, content_.pointer());
  }
  bool enabled() override { return true; }

  // The inner grid that holds the framed element.
  Content& content() noexcept { return content_; }
  void set_caption(std::int32_t reference) noexcept {
    caption_ = reference;
    notify(TX_CHANGED_TEXTS);
  }
  void set_second_text(std::int32_t reference) noexcept {
    second_text_ = reference;
    notify(TX_CHANGED_TEXTS);
  }

 protected:
  explicit groupbox_base(std::int32_t caption) : caption_(caption) {}
  ~groupbox_base() = default;

 private:
  std::int32_t caption_;
  std::int32_t second_text_ = 0;
  Content content_;
};

}  // namespace detail

template <int R, int C>
class groupbox;

template <>
class groupbox<1, 1> final : public detail::groupbox_base<groupbox<1, 1>, grid_layout<1, 1>> {
 public:
  explicit groupbox(std::int32_t caption = 0) : groupbox_base(caption) {}
};

}  // namespace toolkit
}  // namespace tx
