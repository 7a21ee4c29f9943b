// The host's reading of a dialog's button box: its buttons, in the order they are drawn.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tx/abi.h"

namespace tx::host::dialog {

struct button_entry {
  std::int32_t index = 0;
  std::string caption;  // UTF-8; empty when the button has none
  bool shown = false;
};

// Every button of `box` (a tx_button_box_interface_2 pair), hidden ones included.
std::vector<button_entry> buttons_of(tx_custom_pointer box);

}  // namespace tx::host::dialog
