// toolbar: the toolbar element ("tx_toolbar_interface_6") and its tool set
// ("tx_tool_set_interface_5").
//
// toolbar<Tools, tx::toolbar_impl, void> holds its Tools (a with_tools, built from the
// toolbar's constructor arguments) and a nested toolset through which the host walks them.
// The toolbar keeps no list of its own: each walk asks the Tools afresh.
#pragma once

#include <type_traits>
#include <utility>

#include "toolkit/element.h"
#include "toolkit/tools.h"
#include "tx/toolkit/toolbar.h"

namespace tx {

template <>
struct interface_traits<tx_tools_visitor_interface_0> {
  static constexpr const char* name = TX_TOOLS_VISITOR_INTERFACE_0;
};

class tool_set_impl : public interface_impl {
 public:
  using table_type = tx_tool_set_interface_5;
  static constexpr const char* interface_name = TX_TOOL_SET_INTERFACE_5;
  static const table_type* table() noexcept;

  virtual void visit_tools(custom_pointer visitor) = 0;
  virtual custom_pointer find_tool(const char16_t* id) = 0;

 protected:
  ~tool_set_impl() = default;
};

class toolbar_impl : public interface_impl {
 public:
  using table_type = tx_toolbar_interface_6;
  static constexpr const char* interface_name = TX_TOOLBAR_INTERFACE_6;
  static const table_type* table() noexcept;

  virtual custom_pointer tool_set() = 0;
  virtual void set_view(custom_pointer view) = 0;

 protected:
  ~toolbar_impl() = default;
};

namespace toolkit {
namespace detail {

// Hands offered tools to the host's tx_tools_visitor_interface_0; once the host declines,
// offers nothing more.
class host_tools_visitor final : public tools_visitor {
 public:
  explicit host_tools_visitor(custom_pointer host) noexcept : host_(host) {}
  bool tool(const char16_t* id, custom_pointer tool) override;
  void group() override;

 private:
  custom_pointer host_;
  bool taking_ = true;
};

}  // namespace detail

// Place: where the toolbar sits of its own accord; void (the only kind supported) leaves it to
// the layout cell that holds it.
template <class Tools, class Impl = toolbar_impl, class Place = void>
class toolbar final : public detail::generic_element_impl<Impl> {
  static_assert(std::is_base_of_v<with_tools, Tools>, "the tools publish through with_tools");
  static_assert(std::is_base_of_v<toolbar_impl, Impl>, "a toolbar implements toolbar_impl");
  static_assert(std::is_void_v<Place>, "a toolbar is placed by its layout cell");

 public:
  // The toolbar's tool set: publishes the toolbar's Tools to the host.
  class toolset final : public single_interface<tool_set_impl> {
   public:
    explicit toolset(toolbar& owner) noexcept : owner_(owner) {}

    void visit_tools(custom_pointer visitor) override {
      if (!present(visitor)) return;
      detail::host_tools_visitor host(visitor);
      owner_.tools().publish(host);
    }
    custom_pointer find_tool(const char16_t* id) override {
      if (id == nullptr) return {};
      return tools_visitor::toolset_state_impl<toolbar>(owner_).find(id);
    }

   private:
    toolbar& owner_;
  };

  // `args`: the Tools' constructor arguments.
  template <class... Args>
  explicit toolbar(Args&&... args) : tools_(std::forward<Args>(args)...), toolset_(*this) {}

  custom_pointer tool_set() override { return toolset_.pointer(); }

  Tools& tools() noexcept { return tools_; }
  const Tools& tools() const noexcept { return tools_; }

 private:
  Tools tools_;
  toolset toolset_;
};

}  // namespace toolkit
}  // namespace tx
