// The string visitor as the plug-in implements it, to receive a text from whoever it asks.
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

}  // namespace tx
