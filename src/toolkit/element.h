// The part every toolkit element shares: answering the query for its one element interface,
// keeping the host's view, and telling that view what changed.
//
// An element class derives from detail::generic_element_impl<I>, I being the _impl class of its
// element interface; the element implements I's operations. Elements are owned by the widget
// that builds them (by value or through owning pointers) and never move once built: the host
// holds their addresses.
#pragma once

#include <cstdint>

#include "plugin/interface.h"
#include "resources/loader.h"
#include "tx/toolkit/element.h"

namespace tx {

template <>
struct interface_traits<tx_element_visitor_interface_0> {
  static constexpr const char* name = TX_ELEMENT_VISITOR_INTERFACE_0;
};
template <>
struct interface_traits<tx_element_view_interface_0> {
  static constexpr const char* name = TX_ELEMENT_VIEW_INTERFACE_0;
};

namespace toolkit {

// A text property held as a resource reference: 0 means absent (no visitor is called);
// otherwise the text is resolved now, in the current language.
inline bool load_text(std::int32_t reference, custom_pointer visitor) noexcept {
  return reference != 0 && resource::load_string(reference, visitor);
}

// Hands an element pair to a tx_element_visitor_interface_0.
inline void visit_element(custom_pointer visitor, custom_pointer element) noexcept {
  if (!present(element)) return;
  call<tx_element_visitor_interface_0>(visitor, &tx_element_visitor_interface_0::visit, element);
}

namespace detail {

template <class I>
class generic_element_impl : public I {
 public:
  generic_element_impl(const generic_element_impl&) = delete;
  generic_element_impl& operator=(const generic_element_impl&) = delete;

  int query(const char* name, const void** table, void** object) noexcept override {
    return match<I>(this, name, table, object);
  }
  custom_pointer root() noexcept override { return root_of(static_cast<I*>(this)); }
  void set_view(custom_pointer view) override { view_ = present(view) ? view : custom_pointer{}; }

  // This element's pair for its interface.
  custom_pointer pointer() noexcept { return pointer_to<I>(this); }
  custom_pointer view() const noexcept { return view_; }

 protected:
  generic_element_impl() = default;
  ~generic_element_impl() = default;

  // Tells the host's view what changed; nobody is told while the element has no view.
  void notify(std::uint32_t what) const noexcept {
    call<tx_element_view_interface_0>(view_, &tx_element_view_interface_0::changed, what);
  }

 private:
  custom_pointer view_{};
};

}  // namespace detail
}  // namespace toolkit
}  // namespace tx
