// Service factories and the process-wide registry they enter.
//
// A custom factory appends itself to the registry when it is constructed and removes itself
// when it is destroyed; the plug-in's factories are static objects, so the registry lists them
// in order of static initialisation and empties in reverse at unload. The bundle's visit walks
// the registry and hands each factory, with its namespace key, to the host.
#pragma once

#include <string>
#include <vector>

#include "plugin/interface.h"
#include "tx/bundle.h"

namespace tx {

class service_factory_impl : public interface_impl {
 public:
  using table_type = tx_service_factory_table;
  static const table_type* table() noexcept;

  // `registry`: the host's service registry; `visitor`: the host's receiver of published
  // services. Both borrowed for the call.
  virtual void visit(custom_pointer registry, custom_pointer visitor) = 0;

  // A factory answers no interface name: it is reached only through the bundle.
  int query(const char*, const void**, void**) noexcept override { return 1; }
  custom_pointer root() noexcept override { return root_of(this); }

 protected:
  service_factory_impl() = default;
  ~service_factory_impl() = default;
};

class basic_service_factory_impl : public service_factory_impl {
 public:
  // The namespace key under which the host files this factory's services; empty by default.
  const std::u16string& key() const noexcept { return key_; }

 protected:
  explicit basic_service_factory_impl(const char16_t* key) : key_(key != nullptr ? key : u"") {}
  ~basic_service_factory_impl() = default;

 private:
  std::u16string key_;
};

// The registry: live factories in order of registration. Created on first use.
class factory_registry {
 public:
  static factory_registry& instance();

  // Appends; the length error "list<T> too long" past the maximum length.
  void add(basic_service_factory_impl* factory);
  // Removes every entry equal to `factory`.
  void remove(const basic_service_factory_impl* factory) noexcept;
  std::vector<basic_service_factory_impl*> entries() const { return entries_; }

 private:
  factory_registry() = default;
  std::vector<basic_service_factory_impl*> entries_;
};

// A factory that is in the registry for its lifetime: what custom service factories and custom
// client factories share. Not copyable: the registry holds its address.
class registered_factory : public basic_service_factory_impl {
 public:
  registered_factory(const registered_factory&) = delete;
  registered_factory& operator=(const registered_factory&) = delete;

 protected:
  explicit registered_factory(const char16_t* key);
  ~registered_factory();
};

// A factory that publishes services to the host.
class custom_service_factory_impl : public registered_factory {
 protected:
  explicit custom_service_factory_impl(const char16_t* key = nullptr) : registered_factory(key) {}
  ~custom_service_factory_impl() = default;
};

}  // namespace tx
