// txhost --gui: each dialog the plug-in shows becomes a real window (dialog_window.h) driven
// through its controls, as a person's input would drive it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "tx/abi.h"
#include "tx_host/dialog/dialog_surface.h"

namespace tx::host::gui {

struct window_options {
  // No script: a person works the window with mouse and keyboard until it closes.
  bool by_hand = false;
  // Where `screenshot FILE` writes a FILE given without a folder; empty: the current folder.
  std::string screenshots;
};

std::unique_ptr<dialog::dialog_surface> make_window_surface(tx_custom_pointer docker,
                                                            tx_custom_pointer buttons,
                                                            std::int32_t language_offset,
                                                            const window_options& options);

// Loads the common controls (version 6 with txhost's manifest); once, before any window.
void start_common_controls();

}  // namespace tx::host::gui
