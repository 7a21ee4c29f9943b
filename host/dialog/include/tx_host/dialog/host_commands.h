// Commands that act on the host while a dialog is shown, not on the dialog: another part of the
// host changing the open project under the plug-in's feet (`delete ELEMENT`). The modal dialog
// view hands them to the host commands it was given; without any, such a command is an error.
#pragma once

#include "tx_host/dialog/dialog_driver.h"
#include "tx_host/dialog/script.h"

namespace tx::host::dialog {

class host_commands {
 public:
  host_commands(const host_commands&) = delete;
  host_commands& operator=(const host_commands&) = delete;

  // Whether `what` is a command for the host rather than for the dialog.
  static constexpr bool for_host(verb what) noexcept { return what == verb::remove; }

  // Runs a command for which for_host() holds; closed_with is never set.
  virtual command_outcome run(const command& c) = 0;

 protected:
  host_commands() = default;
  ~host_commands() = default;
};

}  // namespace tx::host::dialog
