// Modal dialogs: the plug-in's modal dialog service names its dialogs to the host, and the host
// gives each dialog the view through which the plug-in later shows it.
#pragma once

#include "plugin/referent.h"
#include "plugin/service_factory.h"
#include "tx/modal_dialog.h"

namespace tx {

template <>
struct interface_traits<tx_modal_dialog_service_visitor_interface_102> {
  static constexpr const char* name = TX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE_102;
};
template <>
struct interface_traits<tx_modal_dialog_visitor_interface_101> {
  static constexpr const char* name = TX_MODAL_DIALOG_VISITOR_INTERFACE_101;
};
template <>
struct interface_traits<tx_modal_dialog_service_interface_102> {
  static constexpr const char* name = TX_MODAL_DIALOG_SERVICE_INTERFACE_102;
};
template <>
struct interface_traits<tx_modal_dialog_view_interface_101> {
  static constexpr const char* name = TX_MODAL_DIALOG_VIEW_INTERFACE_101;
};

class modal_dialog_impl : public interface_impl {
 public:
  using table_type = tx_modal_dialog_interface_101;
  static constexpr const char* interface_name = TX_MODAL_DIALOG_INTERFACE_101;
  static const table_type* table() noexcept;

  // Keeps the host's view of this dialog (a null pair forgets it).
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~modal_dialog_impl() = default;
};

class modal_dialog_service_impl : public interface_impl {
 public:
  using table_type = tx_modal_dialog_service_interface_102;
  static constexpr const char* interface_name = TX_MODAL_DIALOG_SERVICE_INTERFACE_102;
  static const table_type* table() noexcept;

  virtual custom_pointer referent() = 0;
  // Calls the visitor once per dialog with its identifier and its dialog pair.
  virtual void visit_dialogs(custom_pointer visitor) = 0;

 protected:
  ~modal_dialog_service_impl() = default;
};

// The one dialog of identifier Id (a pointer to a NUL-terminated wide string, or 0 for none).
// It lives as long as the library, so that a command finds the host's view when it runs.
template <auto Id>
class modal_dialog final : public single_interface<modal_dialog_impl> {
 public:
  static modal_dialog& instance() {
    static modal_dialog dialog;
    return dialog;
  }
  void set_view(custom_pointer view) override { view_ = present(view) ? view : custom_pointer{}; }
  // The host's "tx_modal_dialog_view_interface_101" pair; null until the host sets one.
  custom_pointer view() const noexcept { return view_; }

 private:
  modal_dialog() = default;
  custom_pointer view_{};
};

// The modal dialog service for identifier Id: names its one dialog. With no identifier (0) it
// names none.
template <auto Id>
class modal_dialog_service final : public referent<modal_dialog_service_impl> {
 public:
  custom_pointer referent() override { return referent_pointer(); }
  void visit_dialogs(custom_pointer visitor) override {
    if constexpr (!std::is_integral_v<decltype(Id)>) {
      call<tx_modal_dialog_visitor_interface_101>(
          visitor, &tx_modal_dialog_visitor_interface_101::visit, static_cast<const char16_t*>(*Id),
          modal_dialog<Id>::instance().pointer());
    }
  }
};

namespace util::detail {

// Publishes the modal dialog service for Id to the host's visitor, creating it on first demand
// and keeping a strong reference to it.
template <auto Id>
class modal_dialog_service_factory final : public custom_service_factory_impl {
 public:
  modal_dialog_service_factory() = default;

  void visit(custom_pointer, custom_pointer visitor) override {
    const custom_pointer receiver =
        query_interface<tx_modal_dialog_service_visitor_interface_102>(visitor);
    if (!present(receiver)) return;
    if (!service_) {
      service_.reset(pointer_to<modal_dialog_service_impl>(new modal_dialog_service<Id>()));
    }
    call<tx_modal_dialog_service_visitor_interface_102>(
        receiver, &tx_modal_dialog_service_visitor_interface_102::visit, service_.get());
  }

 private:
  ref<tx_modal_dialog_service_interface_102, 1> service_;
};

}  // namespace util::detail
}  // namespace tx
