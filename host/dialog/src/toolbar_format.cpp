#include "tx_host/dialog/toolbar_format.h"

namespace tx::host::dialog {

std::string format_toolbar(std::string_view word, const std::vector<tool_values>& tools) {
  std::string text(word);
  text += ":";
  int group = -1;
  for (const tool_values& t : tools) {
    if (!t.visible) continue;
    text += group < 0 ? " " : t.group != group ? " ‖ " : " | ";
    group = t.group;
    const std::string caption = t.caption.value_or(t.id);
    std::string shown = caption;
    if (t.hint && *t.hint != caption) shown += " [" + *t.hint + "]";
    text += t.enabled ? shown : "(" + shown + ")";
  }
  return text;
}

std::string format_tool_listing(const std::vector<tool_values>& tools) {
  std::string text;
  for (const tool_values& t : tools) {
    text += t.id + ": «" + t.caption.value_or("") + "», " + describe_picture(t.image);
    if (!t.enabled) text += ", disabled";
    if (!t.visible) text += ", hidden";
    text += '\n';
  }
  return text;
}

}  // namespace tx::host::dialog
