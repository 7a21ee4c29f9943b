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

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
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

// The pieces of the text, over plain values: the text host fills them from the elements, the
// window host from its controls, so that both print a dialog alike.
namespace text {

// "[x] Caption" or "[ ] Caption".
std::string checkbox(bool on, std::string_view caption);
// "Caption: [chosen]  (1 first · 2 second)"; `chosen` outside the items: "[—]".
std::string dropdown(std::string_view caption, const std::vector<std::string>& items,
                     std::int32_t chosen, const vocabulary& words);
// "Caption: 5  (0…100)"; the range only when the input is bounded.
std::string integer(std::string_view caption, std::int32_t value, std::int32_t low,
                    std::int32_t high);
// "Caption: «text»  history: «a» · «b»" (history most recent first; "—" when empty).
std::string input(std::string_view caption, std::string_view value,
                  const std::vector<std::string>& history, const vocabulary& words);
// `field` with "  (disabled)" after it when the user cannot change it.
std::string field(std::string field, bool enabled, const vocabulary& words);

// One tool of a toolbar as the toolbar line shows it.
// "┌ Caption", or "┌" without one: the frame's or a group box's first line.
std::string opening(const std::optional<std::string>& caption);
// "[ Apply ] [ Close ]": the shown buttons' captions in order; one without a caption is shown
// by its position, "[ #2 ]".
std::string buttons(const std::vector<std::string>& shown_captions);

// The lines of the dialog: each indented by the gutter of the group boxes around it, trailing
// blanks cut.
class lines {
 public:
  void line(std::string_view text);
  void enter() noexcept { ++depth_; }
  void leave() noexcept { --depth_; }
  std::string take() { return std::move(out_); }

 private:
  std::string out_;
  int depth_ = 0;
};

}  // namespace text

}  // namespace tx::host::dialog
