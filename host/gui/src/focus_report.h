// `focus`: which control of the dialog window has the keyboard focus, as one line —
//   focus: field 2 "Найти"                 a field, by its number and caption as `print` shows them
//   focus: outline, row "A / B"            the outline, with the path of its focused row
//   focus: outline, no row                 the outline, no row focused
//   focus: outline, editor on row "A / B"  the outline's in-place editor
//   focus: toolbar, tool "Свернуть"        the toolbar, with its hot tool (or: no tool)
//   focus: button "Применить"              a button of the dialog
//   focus: none                            no control of the dialog (or the dialog itself)
// read from the controls' own windows, as a person sees where the focus is.
#pragma once

#include <string>

namespace tx::host::gui {

class dialog_window;

// The line, with its line break.
std::string describe_focus(const dialog_window& window);

}  // namespace tx::host::gui
