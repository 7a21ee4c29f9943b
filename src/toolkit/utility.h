// tx::toolkit::utility: the command object that a utility service hands to the host
// ("tx_utility_interface_4"). W is the dialog content it runs, Id the address of the wide-string
// identifier shared by the utility and its modal dialog, Help the dialog's help id.
#pragma once

#include <cstdint>
#include <functional>

#include "plugin/utility_service.h"
#include "resources/loader.h"

namespace tx::toolkit {

template <class W, auto Id, int Help>
class utility;

// Runs the dialog of `command`: builds W inside a docker frame, shows it modally through the
// host with a button box, and destroys everything when it closes (see utility_run.h, included
// where W is complete).
template <class W, auto Id, int Help>
void run_utility(utility<W, Id, Help>& command);

template <class W, auto Id, int Help>
class utility final : public single_interface<utility_impl> {
 public:
  // Called with the content before the dialog is shown.
  using initializer = std::function<void(W&)>;
  // Answers whether the command can run, given the stored host handle.
  using availability = std::function<bool(std::uint64_t)>;

  utility(std::int32_t caption_id, std::int32_t image_id, std::int32_t dialog_caption_id)
      : caption_id_(caption_id), image_id_(image_id), dialog_caption_id_(dialog_caption_id) {}

  bool caption(custom_pointer visitor) override {
    return caption_id_ != 0 && resource::load_string(caption_id_, visitor);
  }
  bool image(custom_pointer visitor) override {
    return image_id_ != 0 && resource::load_bitmap(image_id_, visitor);
  }
  void set_host_handle(std::uint64_t handle) override { host_handle_ = handle; }
  bool is_available() override { return !available_ || available_(host_handle_); }
  void run() override { run_utility(*this); }
  void reserved() override {}
  void set_host_reference(custom_pointer reference) override { host_reference_ = reference; }

  void set_initializer(initializer init) { initializer_ = std::move(init); }
  void set_availability(availability check) { available_ = std::move(check); }
  const initializer& initializer_callback() const noexcept { return initializer_; }

  std::uint64_t host_handle() const noexcept { return host_handle_; }
  custom_pointer host_reference() const noexcept { return host_reference_; }
  std::int32_t dialog_caption_id() const noexcept { return dialog_caption_id_; }
  static constexpr int help_id = Help;

 private:
  std::int32_t caption_id_;
  std::int32_t image_id_;
  std::uint64_t host_handle_ = 0;
  std::int32_t dialog_caption_id_;
  initializer initializer_;
  availability available_;
  custom_pointer host_reference_{};
};

}  // namespace tx::toolkit
