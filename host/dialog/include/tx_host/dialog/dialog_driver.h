// Runs the commands of a script on one shown dialog, as a user would act on it: every command
// finds its target afresh through the element interfaces (the plug-in may have changed the
// dialog since the last one), checks that a user could do it (the field is enabled, the tool
// is enabled, the row is shown, the cell is editable) and then calls the element.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tx/abi.h"
#include "tx_host/dialog/dialog_actions.h"
#include "tx_host/dialog/script.h"
#include "tx_host/dialog/vocabulary.h"

namespace tx::host::dialog {

class dialog_driver final : public dialog_actions {
 public:
  // `docker` and `buttons`: the pairs the dialog is shown with, borrowed while it is shown.
  dialog_driver(tx_custom_pointer docker, tx_custom_pointer buttons,
                std::int32_t language_offset) noexcept
      : docker_(docker), buttons_(buttons), language_(language_offset) {}

  command_outcome run(const command& c);
  // The dialog as text, as `print` prints it.
  std::string render() override;
  // Asks the button box whether its close box may close the dialog, as the frame does.
  bool press_close_box() const noexcept;

 private:
  command_outcome choose_operation(const std::string& operation) override;
  command_outcome set_field(const std::string& field, const std::string& value) override;
  command_outcome row_command(const command& c) override;
  command_outcome click(const std::string& tool) override;
  command_outcome press(const command& c) override;
  std::string tools() override;
  command_outcome screenshot(const std::string& file) override;

  tx_custom_pointer docker_;
  tx_custom_pointer buttons_;
  std::int32_t language_;
};

// A row command (tick, untick, select, deselect, expand, collapse, rename with `text`) on the
// row at `address` of `outline`, refused as a user could not do it; nothing when done.
std::optional<refusal> act_on_row(tx_custom_pointer outline, verb what, std::string_view address,
                                  std::string_view text);

}  // namespace tx::host::dialog
