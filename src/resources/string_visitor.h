// The string visitor: as the plug-in implements it, to receive a text from whoever it asks, and
// the one way the plug-in hands a text to a visitor it is given.
#pragma once

#include "plugin/interface.h"
#include "tx/visitors.h"

namespace tx {

template <>
struct interface_traits<tx_string_visitor_interface_0> {
  static constexpr const char* name = TX_STRING_VISITOR_INTERFACE_0;
};

class string_visitor_impl : public interface_impl {
 public:
  using table_type = tx_string_visitor_interface_0;
  static constexpr const char* interface_name = TX_STRING_VISITOR_INTERFACE_0;
  static const table_type* table() noexcept;

  // `text`: NUL-terminated, owned by the caller, valid during the call only.
  virtual void visit(const char16_t* text) = 0;

 protected:
  string_visitor_impl() = default;
  ~string_visitor_impl() = default;
};

// Hands `text` (NUL-terminated, valid during the call) to `visitor`; an absent visitor or slot is
// skipped. Answers true: what a text question answers once it has a text to give.
bool visit_text(custom_pointer visitor, const char16_t* text) noexcept;

}  // namespace tx
