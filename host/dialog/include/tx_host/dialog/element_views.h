// The host's counterpart of the elements of a shown dialog: one view (tx_element_view_interface_0)
// handed through set_view to every element the dialog holds — layouts, controls, outlines with
// their columns and check boxes, toolbars with their tools — so that the plug-in tells the host
// what changed, as it tells a real host's controls. Each element gets a view of its own, so that
// what it tells names the element: the views gather the changes, and pass each one, with the
// element it came from, to a listener when one is set (a window reads that element again).
//
// Elements are valid while their dialog is shown, so every view is taken back (a null view)
// before show() returns: detach() is the last thing a shown dialog does.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_set>
#include <vector>

#include "tx/abi.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::dialog {

class element_views {
 public:
  // Told of every change: the element's object half and the TX_CHANGED_* bits.
  using listener = std::function<void(void* element, std::uint32_t what)>;

  element_views() = default;
  element_views(const element_views&) = delete;
  element_views& operator=(const element_views&) = delete;
  // Takes the view back from what still holds it.
  ~element_views() { detach(); }

  void set_listener(listener l) { listener_ = std::move(l); }

  // Hands the view to every element under `root` that does not have it yet.
  void attach(tx_custom_pointer root);
  // Takes the view back from every element that has it.
  void detach() noexcept;

  // What the elements told (TX_CHANGED_* bits) since the last call; cleared.
  std::uint32_t take_changes() noexcept;
  // How many elements hold the view.
  std::size_t size() const noexcept { return held_.size(); }

  void changed(void* element, std::uint32_t what) noexcept;

  using set_view_fn = void (*)(void*, tx_custom_pointer);
  // The view one element holds.
  class view final : public interface_object {
   public:
    view(element_views& views, void* held, set_view_fn give_back) noexcept
        : owner(views), element(held), set_view(give_back) {}
    tx_custom_pointer pair() noexcept;
    element_views& owner;
    void* element;
    set_view_fn set_view;

   private:
    std::span<const interface_entry> interfaces() const noexcept override;
  };

 private:
  // Hands a view to `element` through its `set_view` slot, once.
  void give(tx_custom_pointer element, set_view_fn set_view);

  std::vector<std::unique_ptr<view>> held_;
  std::unordered_set<void*> given_;
  std::uint32_t changes_ = 0;
  listener listener_;
};

}  // namespace tx::host::dialog
