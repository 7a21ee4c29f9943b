// A host view that hands what its elements tell straight to one control, and the calls that give
// it to every element a control shows: for the outline and toolbar controls alone, over a
// plug-in's elements, without the dialog window (whose views gather changes first) — in the
// controls' tests and the window's benchmark.
#pragma once

#include "tx/abi.h"
#include "tx_host/gui/control.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::gui {

class refreshing_view final : public host::interface_object {
 public:
  // `target` is borrowed and must outlive every element that holds this view.
  explicit refreshing_view(control& target) : target_(target) {}
  tx_custom_pointer pair() noexcept;
  void changed(std::uint32_t what) { target_.refresh(what); }

 private:
  std::span<const host::interface_entry> interfaces() const noexcept override;

  control& target_;
};

// Hands `view` to the outline, its columns and its check boxes.
void view_outline(tx_custom_pointer outline, tx_custom_pointer view);
// Hands `view` to the toolbar and each tool, whose state hook it is.
void view_toolbar(tx_custom_pointer toolbar, tx_custom_pointer view);

}  // namespace tx::host::gui
