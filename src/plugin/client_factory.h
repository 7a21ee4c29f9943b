// The client factory: links the plug-in to the host's service registry. When the host visits
// it, it asks the registry for the service under the localizer key (received as a localizer
// service, or as any service with its key), asks that service for the localizer of this module
// (received through a localizer visitor), and keeps the localizer for the resource loader.
#pragma once

#include "plugin/localizer.h"
#include "plugin/service_factory.h"

namespace tx {

template <>
struct interface_traits<tx_service_registry_interface_0> {
  static constexpr const char* name = TX_SERVICE_REGISTRY_INTERFACE_0;
};
template <>
struct interface_traits<tx_localizer_service_interface_1> {
  static constexpr const char* name = TX_LOCALIZER_SERVICE_INTERFACE_1;
};

class service_registry_visitor_impl : public interface_impl {
 public:
  using table_type = tx_service_registry_visitor_interface_0;
  static constexpr const char* interface_name = TX_SERVICE_REGISTRY_VISITOR_INTERFACE_0;
  static const table_type* table() noexcept;

  virtual void visit(const char16_t* key, custom_pointer service) = 0;

 protected:
  ~service_registry_visitor_impl() = default;
};

class localizer_service_visitor_impl : public interface_impl {
 public:
  using table_type = tx_localizer_service_visitor_interface_1;
  static constexpr const char* interface_name = TX_LOCALIZER_SERVICE_VISITOR_INTERFACE_1;
  static const table_type* table() noexcept;

  virtual void visit(custom_pointer service) = 0;

 protected:
  ~localizer_service_visitor_impl() = default;
};

class localizer_visitor_impl : public interface_impl {
 public:
  using table_type = tx_localizer_visitor_interface_1;
  static constexpr const char* interface_name = TX_LOCALIZER_VISITOR_INTERFACE_1;
  static const table_type* table() noexcept;

  virtual void visit(custom_pointer localizer) = 0;

 protected:
  ~localizer_visitor_impl() = default;
};

class localizer_client_impl : public interface_impl {
 public:
  using table_type = tx_localizer_client_interface_0;
  static constexpr const char* interface_name = TX_LOCALIZER_CLIENT_INTERFACE_0;
  static const table_type* table() noexcept;

  virtual const char16_t* module_name() = 0;

 protected:
  ~localizer_client_impl() = default;
};

// A client factory registers itself like a service factory; it publishes nothing.
class custom_client_factory_impl : public registered_factory {
 protected:
  explicit custom_client_factory_impl(const char16_t* key = nullptr) : registered_factory(key) {}
  ~custom_client_factory_impl() = default;
};

namespace util {

// The plug-in's client factory: fetches and keeps the host's localizer; forgets it at unload.
class client_factory final : public custom_client_factory_impl {
 public:
  explicit client_factory(const char16_t* module_name);
  ~client_factory();

  void visit(custom_pointer registry, custom_pointer visitor) override;

 private:
  // Takes the localizer service from the registry, by either of the registry's routes.
  class registry_visitor final : public service_registry_visitor_impl,
                                 public localizer_service_visitor_impl {
   public:
    explicit registry_visitor(client_factory& owner) : owner_(owner) {}
    int query(const char* name, const void** table, void** object) noexcept override;
    custom_pointer root() noexcept override;
    custom_pointer pointer() noexcept { return pointer_to<service_registry_visitor_impl>(this); }
    void visit(const char16_t* key, custom_pointer service) override;
    void visit(custom_pointer service) override;

   private:
    client_factory& owner_;
  };
  class localizer_visitor final : public single_interface<localizer_visitor_impl> {
   public:
    void visit(custom_pointer localizer) override { set_localizer(localizer); }
  };

  // Asks `service` (any pair) for the localizer of this module.
  void ask_localizer_of(custom_pointer service);
  class client final : public single_interface<localizer_client_impl> {
   public:
    explicit client(const char16_t* name) : name_(name) {}
    const char16_t* module_name() override { return name_; }

   private:
    const char16_t* name_;
  };

  registry_visitor registry_visitor_{*this};
  localizer_visitor localizer_visitor_;
  client client_;
};

}  // namespace util
}  // namespace tx
