// The numbers the dialog window's parts agree on.
#pragma once

#include <windows.h>

namespace tx::host::gui {

// Posted to the dialog to wake the loop that reads what the plug-in told.
inline constexpr UINT kWakeForChanges = WM_APP + 1;
// Button i of the button box has this control id plus i.
inline constexpr int kFirstButtonId = 100;

// Lengths in dialog units: the margin around the content and a button's least size (the gap
// between controls is the layout's, window_layout.h); a button's text has this much room on
// its two sides together.
inline constexpr int kMarginDlu = 7;
inline constexpr int kButtonWidthDlu = 50;
inline constexpr int kButtonHeightDlu = 14;
inline constexpr int kButtonTextRoomDlu = 10;

}  // namespace tx::host::gui
