// What the input controls share: a caption held as a resource reference, enabled and visible
// states, and the `changed` event raised whenever the control's value changes, whether the
// user changed it through the host or the plug-in did.
#pragma once

#include <cstdint>

#include "toolkit/element.h"
#include "toolkit/event.h"

namespace tx::toolkit::detail {

template <class I>
class control_base : public generic_element_impl<I> {
 public:
  bool caption(custom_pointer visitor) override { return load_text(caption_, visitor); }
  bool enabled() override { return enabled_; }
  bool visible() override { return visible_; }

  void set_caption(std::int32_t reference) noexcept {
    caption_ = reference;
    this->notify(TX_CHANGED_TEXTS);
  }
  std::int32_t caption_id() const noexcept { return caption_; }
  void set_enabled(bool on) noexcept { set_state(enabled_, on); }
  void set_visible(bool on) noexcept { set_state(visible_, on); }

  // Raised after the value changed.
  event<void()> changed;

  // Controls are extended (a caption of their own, a kind of item): destroyed through any base.
  virtual ~control_base() = default;

 protected:
  explicit control_base(std::int32_t caption = 0) : caption_(caption) {}

  // A value the plug-in sets: the view is told and `changed` raised, only on a real change.
  template <class T, class U>
  bool assign(T& field, U&& value, std::uint32_t what = TX_CHANGED_VALUE) {
    if (field == value) return false;
    field = std::forward<U>(value);
    this->notify(what);
    changed();
    return true;
  }
  // A value the user set through the host: `changed` raised on a real change, the view (which
  // already shows it) is not told.
  template <class T, class U>
  bool take(T& field, U&& value) {
    if (field == value) return false;
    field = std::forward<U>(value);
    changed();
    return true;
  }

 private:
  void set_state(bool& field, bool on) noexcept {
    if (field == on) return;
    field = on;
    this->notify(TX_CHANGED_STATE);
  }

  std::int32_t caption_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace tx::toolkit::detail
