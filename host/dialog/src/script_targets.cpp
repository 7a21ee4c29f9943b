#include "tx_host/dialog/script_targets.h"

#include <algorithm>

#include "tx_host/dialog/script_values.h"
#include "tx_host/dialog/vocabulary.h"

namespace tx::host::dialog {

lookup<std::size_t> find_field(const std::vector<field_facts>& fields, std::string_view name) {
  std::optional<std::size_t> found;
  if (const std::optional<std::size_t> n = position(name)) {
    if (*n > fields.size()) return refusal{refusal_reason::no_field_numbered, std::string(name)};
    found = *n - 1;
  } else {
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (bare(fields[i].caption) != bare(name)) continue;
      if (found) return refusal{refusal_reason::field_captioned_twice, std::string(name)};
      found = i;
    }
    if (!found) return refusal{refusal_reason::no_field, std::string(name)};
  }
  if (!fields[*found].enabled) return refusal{refusal_reason::field_disabled, std::string(name)};
  return *found;
}

std::optional<std::size_t> find_item(const std::vector<std::string>& items,
                                     std::string_view value) {
  const auto named = std::find(items.begin(), items.end(), value);
  if (named != items.end()) return static_cast<std::size_t>(named - items.begin());
  const std::optional<std::size_t> n = position(value);
  if (n && *n <= items.size()) return *n - 1;
  return std::nullopt;
}

lookup<bool> switch_value(std::string_view value) {
  if (const std::optional<bool> on = on_off(value)) return *on;
  return refusal{refusal_reason::neither_on_nor_off, {}, std::string(value)};
}

lookup<std::int32_t> number_value(std::string_view value) {
  if (const std::optional<std::int32_t> n = whole_number(value)) return *n;
  return refusal{refusal_reason::not_whole_number, {}, std::string(value)};
}

lookup<std::size_t> item_value(const std::vector<std::string>& items, std::string_view field,
                               std::string_view value) {
  if (const std::optional<std::size_t> i = find_item(items, value)) return *i;
  return refusal{refusal_reason::no_item, std::string(field), std::string(value)};
}

lookup<std::size_t> find_operation(const std::optional<list_facts>& selector,
                                   std::string_view operation) {
  if (!selector) return refusal{refusal_reason::no_operation_selector};
  if (!selector->enabled) return refusal{refusal_reason::operation_selector_off};
  if (const std::optional<std::size_t> i = find_item(selector->items, operation)) return *i;
  return refusal{refusal_reason::no_operation, std::string(operation)};
}

lookup<std::size_t> find_tool(const std::vector<tool_values>& tools, std::string_view name) {
  auto found = std::find_if(tools.begin(), tools.end(),
                            [name](const tool_values& t) { return t.id == name; });
  if (found == tools.end()) {
    found = std::find_if(tools.begin(), tools.end(),
                         [name](const tool_values& t) { return t.caption == name; });
  }
  if (found == tools.end()) return refusal{refusal_reason::no_tool, std::string(name)};
  if (!found->visible) return refusal{refusal_reason::tool_hidden, std::string(name)};
  if (!found->enabled) return refusal{refusal_reason::tool_disabled, std::string(name)};
  return static_cast<std::size_t>(found - tools.begin());
}

lookup<std::size_t> find_button(const std::vector<std::string>& shown_captions, const command& c,
                                std::int32_t language_offset) {
  if (c.what == verb::press) {
    const std::string& wanted = c.arguments.at(0);
    const auto named = std::find(shown_captions.begin(), shown_captions.end(), wanted);
    if (named != shown_captions.end()) {
      return static_cast<std::size_t>(named - shown_captions.begin());
    }
    const std::optional<std::size_t> n = position(wanted);
    if (n && *n <= shown_captions.size()) return *n - 1;
    return refusal{refusal_reason::no_button, wanted};
  }
  const button_role role = c.what == verb::accept ? button_role::accept : button_role::close;
  for (std::size_t i = 0; i < shown_captions.size(); ++i) {
    if (role_of(shown_captions[i], language_offset) == role) return i;
  }
  return refusal{role == button_role::accept ? refusal_reason::no_accepting_button
                                             : refusal_reason::no_closing_button};
}

}  // namespace tx::host::dialog
