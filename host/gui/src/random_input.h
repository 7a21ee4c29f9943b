// `random-input COUNT SERIES`: a person hitting keys and clicking about the dialog at random —
// COUNT inputs drawn from SERIES, each a key chord of a weighted alphabet (moving the focus,
// arrows, Space, Enter, Esc, F2, F4, Alt+Down, Ctrl+A, Ctrl+Z, letters, digits, Alt+letters,
// Delete, Backspace) or a left click at a random point of the dialog's client area, each
// delivered and waited for as `keys` does. The same series gives the same inputs; what they do may
// differ only as the window answers them. The run stops early, without an error, when an input
// closes the dialog.
#pragma once

#include <cstdint>
#include <string>

#include "tx_host/dialog/dialog_actions.h"

namespace tx::host::gui {

class dialog_window;
class input_delivery;

// Runs the inputs; the outcome prints one line: how many were sent and whether the dialog closed.
dialog::command_outcome random_input(dialog_window& window, input_delivery& delivery,
                                     std::uint32_t count, std::uint32_t series);

}  // namespace tx::host::gui
