// docker: the frame that carries the dialog's content ("tx_docker_interface_92").
//
// docker_base holds, in order: the caption and image ids (both from its one constructor
// argument), the flags for the host's frame (1), and the host's reference to the frame (empty
// until the host sets it). docker<W> adds the content widget, by value; the host is handed the
// widget's layout element.
#pragma once

#include <concepts>
#include <cstdint>
#include <utility>

#include "toolkit/element.h"
#include "tx/toolkit/docker.h"

namespace tx {

class docker_impl : public interface_impl {
 public:
  using table_type = tx_docker_interface_92;
  static constexpr const char* interface_name = TX_DOCKER_INTERFACE_92;
  static const table_type* table() noexcept;

  virtual bool image(custom_pointer visitor) = 0;
  virtual bool caption(custom_pointer visitor) = 0;
  virtual void visit_content(custom_pointer visitor) = 0;
  virtual std::uint32_t flags() = 0;
  virtual std::uint32_t id() = 0;
  virtual void set_host_reference(custom_pointer reference) = 0;

 protected:
  ~docker_impl() = default;
};

namespace toolkit {

class docker_base : public single_interface<docker_impl> {
 public:
  docker_base(const docker_base&) = delete;
  docker_base& operator=(const docker_base&) = delete;
  virtual ~docker_base() = default;

  bool image(custom_pointer visitor) override;
  bool caption(custom_pointer visitor) override;
  std::uint32_t flags() override { return flags_; }
  // A dialog's frame is none of the host's numbered frames.
  std::uint32_t id() override { return TX_DOCKER_NO_ID; }
  void set_host_reference(custom_pointer reference) override { host_reference_ = reference; }

  custom_pointer host_reference() const noexcept { return host_reference_; }

 protected:
  // `id`: the resource reference of both the caption and the image (0: neither).
  explicit docker_base(std::int32_t id) noexcept : caption_(id), image_(id) {}

 private:
  std::int32_t caption_;
  std::int32_t image_;
  std::uint32_t flags_ = 1;
  custom_pointer host_reference_{};
};

// A content widget: it hands out its root layout element.
template <class W>
concept docker_content = requires(W& widget) {
  { widget.layout() } -> std::same_as<custom_pointer>;
};

template <docker_content W>
class docker final : public docker_base {
 public:
  // `id`: as docker_base; `args`: the widget's constructor arguments.
  template <class... Args>
  explicit docker(std::int32_t id, Args&&... args)
      : docker_base(id), widget_(std::forward<Args>(args)...) {}

  void visit_content(custom_pointer visitor) override { visit_element(visitor, widget_.layout()); }

  W& widget() noexcept { return widget_; }

 private:
  W widget_;
};

}  // namespace toolkit
}  // namespace tx
