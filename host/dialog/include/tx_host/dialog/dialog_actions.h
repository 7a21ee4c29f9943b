// What a person can do to a shown dialog, one action for each kind of script command. The text
// host does each through the elements' interfaces (dialog_driver), the window through its native
// controls (window_surface); dispatch() maps a command to its action for both, so that the two
// hosts read every script alike.
#pragma once

#include <optional>
#include <string>

#include "tx_host/dialog/refusal.h"
#include "tx_host/dialog/script.h"

namespace tx::host::dialog {

struct command_outcome {
  // Set when the command closed the dialog: the button's index, or -1 for the close box.
  std::optional<std::int32_t> closed_with;
  // What the command printed (print, help, tools).
  std::string output;
  // Why the command could not be done; empty when it was.
  std::string error;
};

// A command refused: with the error line's text, or with a reason found by script_targets.h.
command_outcome failure(std::string error);
command_outcome failure(const refusal& why);
// A command done; nothing to tell.
inline command_outcome done() { return {}; }
// Done, or refused for `why`.
inline command_outcome outcome_of(const std::optional<refusal>& why) {
  return why ? failure(*why) : done();
}

class dialog_actions {
 public:
  // The dialog as `print` prints it.
  virtual std::string render() = 0;
  virtual command_outcome choose_operation(const std::string& operation) = 0;
  virtual command_outcome set_field(const std::string& field, const std::string& value) = 0;
  // tick, untick, select, deselect, expand, collapse, rename, escape.
  virtual command_outcome row_command(const command& c) = 0;
  virtual command_outcome click(const std::string& tool) = 0;
  // accept, close, press, closebox.
  virtual command_outcome press(const command& c) = 0;
  // The `tools` listing.
  virtual std::string tools() = 0;
  virtual command_outcome screenshot(const std::string& file) = 0;
  // keys, type, focus, random-input: a keyboard and a mouse, which only the window has; any
  // other host refuses them.
  virtual command_outcome keyboard(const command& c);

 protected:
  dialog_actions() = default;
  dialog_actions(const dialog_actions&) = default;
  dialog_actions& operator=(const dialog_actions&) = default;
  ~dialog_actions() = default;
};

// Runs `c` through the action it names; commands that no shown dialog takes are refused.
command_outcome dispatch(dialog_actions& actions, const command& c);

}  // namespace tx::host::dialog
