// A toolbar as the text host prints it, from plain values: the tools read from the plug-in and
// the buttons a window's toolbar shows go through this one formatting, so both hosts print the
// same line and the same listing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tx_host/dialog/picture_reader.h"

namespace tx::host::dialog {

struct tool_values {
  std::string id;                      // UTF-8
  std::optional<std::string> caption;  // nothing when the tool has none
  std::optional<std::string> hint;
  std::optional<picture_size> image;  // nothing when the tool has no picture
  bool enabled = true;
  bool visible = true;
  int group = 0;  // 0 for the first group
};

// "WORD: A | B ‖ (C)": the shown tools' captions (the id for a tool without one, a hint that
// differs from the caption in brackets), '|' between tools, '‖' between groups, a disabled tool
// in parentheses. `word` is the host's word for tools.
std::string format_toolbar(std::string_view word, const std::vector<tool_values>& tools);

// One line a tool, each ending in a line break: "ID: «CAPTION», image 16×16" or "…, no image",
// with ", disabled" and ", hidden" added when so.
std::string format_tool_listing(const std::vector<tool_values>& tools);

}  // namespace tx::host::dialog
