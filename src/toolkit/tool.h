// tool: one action tool of a toolbar ("tx_action_tool_interface_0").
//
// A tool holds, in order: its image, caption and hint (resource references), further images,
// visible and enabled flags (both initially true), the action run on a click, and its state
// hook: the host's view of the tool, set by the host when it takes the tool, called whenever
// enabled or visible really changes (and for changed texts and images, with their own bits).
// Without a hook nobody is called.
#pragma once

#include <cstdint>
#include <functional>
#include <type_traits>
#include <vector>

#include "toolkit/bitmap.h"
#include "toolkit/element.h"
#include "toolkit/event.h"
#include "tx/toolkit/toolbar.h"

namespace tx {

class action_tool_impl : public interface_impl {
 public:
  using table_type = tx_action_tool_interface_0;
  static constexpr const char* interface_name = TX_ACTION_TOOL_INTERFACE_0;
  static const table_type* table() noexcept;

  virtual bool image(custom_pointer visitor) = 0;
  virtual bool caption(custom_pointer visitor) = 0;
  virtual bool hint(custom_pointer visitor) = 0;
  virtual std::int32_t extra_image_count() = 0;
  virtual bool extra_image(std::int32_t index, custom_pointer visitor) = 0;
  virtual bool enabled() = 0;
  virtual bool visible() = 0;
  virtual void invoke() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~action_tool_impl() = default;
};

namespace toolkit::detail {

// Extra: a further kind of tool state; void (the only kind supported): none.
template <class Impl = action_tool_impl, class Extra = void>
class tool final : public generic_element_impl<Impl> {
  static_assert(std::is_base_of_v<action_tool_impl, Impl>, "a tool implements action_tool_impl");
  static_assert(std::is_void_v<Extra>, "an action tool carries no further state");

 public:
  using action_type = std::function<void()>;

  tool() = default;

  bool image(custom_pointer visitor) override { return load_image(image_, visitor); }
  bool caption(custom_pointer visitor) override { return load_string_id(caption_, visitor); }
  bool hint(custom_pointer visitor) override { return load_string_id(hint_, visitor); }
  std::int32_t extra_image_count() override {
    return static_cast<std::int32_t>(extra_images_.size());
  }
  bool extra_image(std::int32_t index, custom_pointer visitor) override {
    if (index < 0 || static_cast<std::size_t>(index) >= extra_images_.size()) return false;
    return load_image(extra_images_[static_cast<std::size_t>(index)], visitor);
  }
  bool enabled() override { return enabled_; }
  bool visible() override { return visible_; }
  // Runs the action (a copy, so that the action may replace itself), then raises `invoked`.
  void invoke() override {
    if (!enabled_ || !visible_) return;
    if (const action_type run = action_; run) run();
    invoked();
  }

  // Sets what a configured tool shows and does: image (see load_image), caption and hint
  // (string ids) and the action.
  void configure(std::int32_t image, std::uint32_t caption, std::uint32_t hint,
                 action_type action) {
    set_image(image);
    set_caption(caption);
    set_hint(hint);
    action_ = std::move(action);
  }
  void set_image(std::int32_t image) noexcept { assign(image_, image, TX_CHANGED_VALUE); }
  void set_caption(std::uint32_t caption) noexcept { assign(caption_, caption, TX_CHANGED_TEXTS); }
  void set_hint(std::uint32_t hint) noexcept { assign(hint_, hint, TX_CHANGED_TEXTS); }
  void set_extra_images(std::vector<std::int32_t> images) {
    if (images == extra_images_) return;
    extra_images_ = std::move(images);
    this->notify(TX_CHANGED_VALUE);
  }
  void set_action(action_type action) { action_ = std::move(action); }
  // The state hook is called only when the flag really changes.
  void set_enabled(bool on) noexcept { assign(enabled_, on, TX_CHANGED_STATE); }
  void set_visible(bool on) noexcept { assign(visible_, on, TX_CHANGED_STATE); }

  std::int32_t image_id() const noexcept { return image_; }
  std::uint32_t caption_id() const noexcept { return caption_; }
  std::uint32_t hint_id() const noexcept { return hint_; }

  // Raised after the user clicked the tool and its action ran.
  event<void()> invoked;

 private:
  static bool load_string_id(std::uint32_t id, custom_pointer visitor) noexcept {
    return load_text(static_cast<std::int32_t>(id), visitor);
  }
  template <class T>
  void assign(T& field, T value, std::uint32_t what) noexcept {
    if (field == value) return;
    field = value;
    this->notify(what);
  }

  std::int32_t image_ = 0;
  std::uint32_t caption_ = 0;
  std::uint32_t hint_ = 0;
  std::vector<std::int32_t> extra_images_;
  bool visible_ = true;
  bool enabled_ = true;
  action_type action_;
};

}  // namespace toolkit::detail
}  // namespace tx
