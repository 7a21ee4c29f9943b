// The run of a utility's dialog. Included by the one file that instantiates it for a complete
// content type W (which offers open(), accept() and layout()).
#pragma once

#include "plugin/modal_dialog_service.h"
#include "toolkit/button_box.h"
#include "toolkit/docker.h"
#include "toolkit/utility.h"
#include "tx/host/txk_basic.h"
#include "tx/modal_dialog.h"

namespace tx::toolkit {

// The buttons of a dialog: accept (bit 2) and close (bit 8); with a help id, help (bit 16) too.
inline constexpr std::uint32_t dialog_buttons = 2 | 8;
inline constexpr std::uint32_t dialog_buttons_with_help = dialog_buttons | 16;

template <class W, auto Id, int Help>
void run_utility(utility<W, Id, Help>& command) {
  // The frame and the content live on this stack for exactly one showing.
  docker<W> frame(command.dialog_caption_id());
  W& widget = frame.widget();
  widget.open();
  if (command.initializer_callback()) command.initializer_callback()(widget);

  button_box buttons(Help != 0 ? dialog_buttons_with_help : dialog_buttons);
  if constexpr (Help != 0) {
    buttons.set_help([] { tx_help_mngr_show_help(1, tx_help_mngr_find_help_id(Help)); });
  }
  buttons.set_accept([&widget] { return widget.accept(); });

  // Without the host's dialog view nothing is shown.
  const custom_pointer view = modal_dialog<Id>::instance().view();
  if (!present(view)) return;
  call<tx_modal_dialog_view_interface_101>(view, &tx_modal_dialog_view_interface_101::show,
                                           frame.pointer(), buttons.pointer());
}

}  // namespace tx::toolkit
