// The utility service factory and the holders it owns.
//
// A holder stands for one service class T. When the factory is visited, every holder is handed
// the host's visitor and looks in it for the visitor interface of T's service; if at least one
// holder found one, every holder publishes: it creates its service object on first demand
// (keeping it alive with a strong reference and watching it with a weak one) and passes it to
// the host's visitor, which may attach itself to it.
#pragma once

#include <memory>
#include <vector>

#include "plugin/referent.h"
#include "plugin/service_factory.h"

namespace tx::util::detail {

template <class T>
class service_holder_base {
 public:
  service_holder_base() = default;
  service_holder_base(const service_holder_base&) = delete;
  service_holder_base& operator=(const service_holder_base&) = delete;
  virtual ~service_holder_base() = default;

  // Takes what the host handed the factory; keeps the host's visitor for T's service, if any.
  virtual void set_context(custom_pointer visitor) = 0;
  // Whether the host offered a visitor for T's service.
  virtual bool connected() const = 0;
  // Creates the service if it does not live, and hands it to the host's visitor.
  virtual void publish() = 0;
};

// S: the service's table type; SI: its implementation class; SV: the host visitor's table type.
template <class T, class S, class SI, class SV>
class ref_service_holder final : public service_holder_base<T> {
 public:
  void set_context(custom_pointer visitor) override { visitor_ = query_interface<SV>(visitor); }
  bool connected() const override { return present(visitor_); }
  void publish() override {
    if (!weak_) {
      // The service is a referent: it is destroyed by its last referrer's detach, never here.
      const custom_pointer service = pointer_to<SI>(new T());
      strong_.reset(service);
      weak_.reset(service);
    }
    call<SV>(visitor_, &SV::visit, weak_.get());
  }

 private:
  ref<S, 1> strong_;
  ref<S, 0> weak_;
  custom_pointer visitor_{};
};

}  // namespace tx::util::detail

namespace tx::util {

// A factory publishing the services of its holders under one namespace key.
template <class T>
class service_factory final : public custom_service_factory_impl {
 public:
  using holder = detail::service_holder_base<T>;

  service_factory(const char16_t* key, std::vector<std::unique_ptr<holder>> holders)
      : custom_service_factory_impl(key), holders_(std::move(holders)) {}

  void visit(custom_pointer, custom_pointer visitor) override {
    bool any_connected = false;
    for (const auto& h : holders_) {
      h->set_context(visitor);
      any_connected = any_connected || h->connected();
    }
    if (!any_connected) return;
    for (const auto& h : holders_) h->publish();
  }

 private:
  std::vector<std::unique_ptr<holder>> holders_;
};

}  // namespace tx::util
