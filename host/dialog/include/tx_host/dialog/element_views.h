// The host's counterpart of the elements of a shown dialog: one view (tx_element_view_interface_0)
// handed through set_view to every element the dialog holds — layouts, controls, outlines with
// their columns and check boxes, toolbars with their tools — so that the plug-in tells the host
// what changed, as it tells a real host's controls. The view only gathers what it is told.
//
// Elements are valid while their dialog is shown, so every view is taken back (a null view)
// before show() returns: detach() is the last thing a shown dialog does.
#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

#include "tx/abi.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::dialog {

class element_views final : public interface_object {
 public:
  element_views() = default;
  // Takes the view back from what still holds it.
  ~element_views() override { detach(); }

  // Hands the view to every element under `root` that does not have it yet.
  void attach(tx_custom_pointer root);
  // Takes the view back from every element that has it.
  void detach() noexcept;

  // What the elements told (TX_CHANGED_* bits) since the last call; cleared.
  std::uint32_t take_changes() noexcept;
  // How many elements hold the view.
  std::size_t size() const noexcept { return held_.size(); }

  void changed(std::uint32_t what) noexcept { changes_ |= what; }

 private:
  using set_view_fn = void (*)(void*, tx_custom_pointer);
  struct held {
    void* element;
    set_view_fn set_view;
  };

  std::span<const interface_entry> interfaces() const noexcept override;
  // Hands the view to `element` through its `set_view` slot, once.
  void give(tx_custom_pointer element, set_view_fn set_view);

  std::vector<held> held_;
  std::unordered_set<void*> given_;
  std::uint32_t changes_ = 0;
};

}  // namespace tx::host::dialog
