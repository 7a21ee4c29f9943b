// The utility interfaces the plug-in implements: a command ("tx_utility_interface_4") and the
// service that publishes commands ("tx_utility_service_interface_2").
#pragma once

#include <cstdint>

#include "plugin/interface.h"
#include "tx/utility.h"

namespace tx {

template <>
struct interface_traits<tx_utility_service_visitor_interface_2> {
  static constexpr const char* name = TX_UTILITY_SERVICE_VISITOR_INTERFACE_2;
};
template <>
struct interface_traits<tx_utility_visitor_interface_2> {
  static constexpr const char* name = TX_UTILITY_VISITOR_INTERFACE_2;
};
template <>
struct interface_traits<tx_utility_service_interface_2> {
  static constexpr const char* name = TX_UTILITY_SERVICE_INTERFACE_2;
};

class utility_impl : public interface_impl {
 public:
  using table_type = tx_utility_interface_4;
  static constexpr const char* interface_name = TX_UTILITY_INTERFACE_4;
  static const table_type* table() noexcept;

  virtual bool caption(custom_pointer visitor) = 0;
  virtual bool image(custom_pointer visitor) = 0;
  virtual void set_host_handle(std::uint64_t handle) = 0;
  virtual bool is_available() = 0;
  virtual void run() = 0;
  virtual void reserved() = 0;
  virtual void set_host_reference(custom_pointer reference) = 0;

 protected:
  ~utility_impl() = default;
};

class utility_service_impl : public interface_impl {
 public:
  using table_type = tx_utility_service_interface_2;
  static constexpr const char* interface_name = TX_UTILITY_SERVICE_INTERFACE_2;
  static const table_type* table() noexcept;

  // The service's "tx_referent_interface_1" pair, through which the host attaches itself.
  virtual custom_pointer referent() = 0;
  // Calls the visitor once per command with its identifier and its command pair.
  virtual void visit_utilities(custom_pointer visitor) = 0;

 protected:
  ~utility_service_impl() = default;
};

}  // namespace tx
