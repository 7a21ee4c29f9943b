// What shows one dialog while it is shown and acts on it for the commands of a script or a
// person: the text host's driver over the elements (text_surface), or a window of native
// controls (txhost --gui). The modal dialog view runs the loop over commands; the surface does
// what each command says and prints the dialog when asked.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "tx/abi.h"
#include "tx_host/dialog/dialog_driver.h"
#include "tx_host/dialog/element_views.h"

namespace tx::host::dialog {

class dialog_surface {
 public:
  dialog_surface(const dialog_surface&) = delete;
  dialog_surface& operator=(const dialog_surface&) = delete;
  virtual ~dialog_surface() = default;

  // Runs one dialog command (not one of the host's own, such as `delete`).
  virtual command_outcome run(const command& c) = 0;
  // The dialog as `print` prints it.
  virtual std::string render() = 0;
  // The frame's close box, as when the commands end or stop with an error.
  virtual void press_close_box() = 0;
  // After each command: the surface catches up with what the plug-in changed.
  virtual void settle() = 0;
  // Whether the plug-in told of a change since the last call.
  virtual bool take_changed() = 0;
  // A surface a person works by hand (a window with mouse and keyboard) runs its own loop until
  // the dialog closes and answers what closed it (a button's index, -1 for the close box);
  // one worked by commands answers nothing.
  virtual std::optional<std::int32_t> run_by_hand() { return std::nullopt; }

 protected:
  dialog_surface() = default;
};

// The text host: commands go to the elements through the dialog driver, and every element of
// the dialog holds a view for as long as the surface lives.
class text_surface final : public dialog_surface {
 public:
  text_surface(tx_custom_pointer docker, tx_custom_pointer buttons, std::int32_t language_offset);
  ~text_surface() override { views_.detach(); }

  command_outcome run(const command& c) override { return driver_.run(c); }
  std::string render() override { return driver_.render(); }
  void press_close_box() override { driver_.press_close_box(); }
  void settle() override { views_.attach(docker_); }
  bool take_changed() override { return views_.take_changes() != 0; }

 private:
  tx_custom_pointer docker_;
  dialog_driver driver_;
  element_views views_;
};

// Makes the surface for a dialog about to be shown: its docker and button box pairs (borrowed
// while it is shown) and the host's language offset.
using surface_factory = std::function<std::unique_ptr<dialog_surface>(
    tx_custom_pointer docker, tx_custom_pointer buttons, std::int32_t language_offset)>;

}  // namespace tx::host::dialog
