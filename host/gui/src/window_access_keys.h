// The texts of the controls that carry an access key (a field's label, a check box, a button):
// written with the key's marker, so that Windows underlines the key and the dialog manager finds
// it, and read back without it, so that what the window prints is the caption itself.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "tx_host/window_logic/access_keys.h"

namespace tx::host::gui {

// The control's caption (UTF-8): its text without the access key's marker.
std::string caption_text(HWND control);
// Shows `caption` (UTF-8) in the control with `key` marked and its own '&' doubled; the text is
// written only when it changes.
void set_caption_text(HWND control, std::string_view caption,
                      const window_logic::assigned_key& key);

}  // namespace tx::host::gui
