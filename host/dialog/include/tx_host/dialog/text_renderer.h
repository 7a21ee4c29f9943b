// The dialog as text: what the reference host shows a person instead of a window, and what the
// end-to-end tests compare. UTF-8, one line per control, stable for a given dialog state:
//
//   ┌ Rename Project Elements           the docker's caption
//   │ ┌ Transformation                  a group box, its content one level in
//   │ │ 1) Type: [Find and Replace]  (1 Find and Replace · 2 Change case · …)
//   │ │ 2) Find: «»  history: —         fields are numbered in order; scripts may use the number
//   │ │ 4) [ ] Match case
//   │ └
//   │ Tools: Expand | Collapse ‖ … ‖ (Undo) | (Redo) ‖ Execute     (disabled) ‖ between groups
//   │        Old name │ New name          an outline: header, then the shown rows
//   │ >  ▾ [x] Scenes │                   '>' selected, '!' faulty, '*' emphasized cell
//   └
//   [ Apply ] [ Close ]                   the button box
#pragma once

#include <string>
#include <vector>

#include "tx/abi.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/vocabulary.h"

namespace tx::host::dialog {

// The whole dialog: the docker frame (`docker`, a tx_docker_interface_92 pair) with its
// content, then the button box (`buttons`, a tx_button_box_interface_2 pair; none when absent).
std::string render_dialog(tx_custom_pointer docker, tx_custom_pointer buttons,
                          const vocabulary& words);

// The fields the dialog shows, in the order they are numbered (1 for the first).
std::vector<element> shown_fields(tx_custom_pointer root);

// One field as it is printed, without its number.
std::string render_field(const element& field, const vocabulary& words);

}  // namespace tx::host::dialog
