#include "tx_host/dialog/dialog_driver.h"

#include <algorithm>
#include <vector>

#include "tx/toolkit/button_box.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/button_reader.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/faulty_row.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/dialog/toolbar_reader.h"

namespace tx::host::dialog {
namespace {

// What the dialog shows that commands act on, found by one walk.
class dialog_parts final : public element_listener {
 public:
  explicit dialog_parts(tx_custom_pointer docker) { walk(docker, *this, walk_scope::shown); }

  void layout(const element& e) override {
    // The operation selector is the drop-down that comes right before the stacked panels.
    if (e.kind == element_kind::stack && !selector && last_dropdown) selector = last_dropdown;
  }
  void leaf(const element& e) override {
    if (e.kind == element_kind::dropdown) last_dropdown = e;
    if (is_field(e.kind)) fields.push_back(e);
    if (e.kind == element_kind::outline && !present(outline)) outline = e.pair;
    if (e.kind == element_kind::toolbar) toolbars.push_back(e.pair);
  }

  std::optional<element> selector;
  std::vector<element> fields;
  tx_custom_pointer outline{};
  std::vector<tx_custom_pointer> toolbars;

 private:
  std::optional<element> last_dropdown;
};

}  // namespace

command_outcome dialog_driver::run(const command& c) { return dispatch(*this, c); }

std::string dialog_driver::tools() {
  const dialog_parts parts(docker_);
  std::string listing;
  for (const tx_custom_pointer toolbar : parts.toolbars) listing += describe_tools(toolbar);
  return listing;
}

// Text has no picture to save: the same script runs in both hosts.
command_outcome dialog_driver::screenshot(const std::string&) { return done(); }

std::string dialog_driver::render() {
  return render_dialog(docker_, buttons_, vocabulary_for(language_));
}

bool dialog_driver::press_close_box() const noexcept {
  return call(buttons_, &tx_button_box_interface_2::press, -1);
}

namespace {

std::vector<std::string> dropdown_items(tx_custom_pointer dropdown) {
  using table = tx_dropdown_interface_3;
  const std::int32_t count = bounded_count(call(dropdown, &table::item_count));
  std::vector<std::string> items;
  for (std::int32_t i = 0; i < count; ++i) {
    items.push_back(collect_text([&](tx_custom_pointer v) {
                      return call(dropdown, &table::item_text, i, v);
                    }).value_or(""));
  }
  return items;
}

}  // namespace

command_outcome dialog_driver::choose_operation(const std::string& operation) {
  const dialog_parts parts(docker_);
  std::optional<list_facts> selector;
  if (parts.selector) {
    selector = list_facts{dropdown_items(parts.selector->pair), element_enabled(*parts.selector)};
  }
  const lookup<std::size_t> item = find_operation(selector, operation);
  if (!item) return failure(item.refused());
  call(parts.selector->pair, &tx_dropdown_interface_3::select, static_cast<std::int32_t>(*item));
  return done();
}

command_outcome dialog_driver::set_field(const std::string& field, const std::string& value) {
  const dialog_parts parts(docker_);
  std::vector<field_facts> facts;
  for (const element& e : parts.fields) {
    facts.push_back({field_caption(e).value_or(""), element_enabled(e)});
  }
  const lookup<std::size_t> found = find_field(facts, field);
  if (!found) return failure(found.refused());
  const element& target = parts.fields[*found];
  switch (target.kind) {
    case element_kind::checkbox: {
      const lookup<bool> on = switch_value(value);
      if (!on) return failure(on.refused());
      call(target.pair, &tx_checkbox_interface_2::set_checked, *on);
      break;
    }
    case element_kind::dropdown: {
      const lookup<std::size_t> item = item_value(dropdown_items(target.pair), field, value);
      if (!item) return failure(item.refused());
      call(target.pair, &tx_dropdown_interface_3::select, static_cast<std::int32_t>(*item));
      break;
    }
    case element_kind::integer_input: {
      const lookup<std::int32_t> n = number_value(value);
      if (!n) return failure(n.refused());
      call(target.pair, &tx_integer_input_interface_6::set_value, *n);
      break;
    }
    default: {
      const std::u16string text = to_utf16(value);
      call(target.pair, &tx_assisted_input_interface_3::set_text, text.c_str());
      break;
    }
  }
  return done();
}

command_outcome dialog_driver::row_command(const command& c) {
  const dialog_parts parts(docker_);
  if (!present(parts.outline)) return failure({refusal_reason::no_outline});
  return outcome_of(act_on_row(parts.outline, c.what, c.arguments.at(0),
                               c.arguments.size() > 1 ? c.arguments[1] : std::string()));
}

command_outcome dialog_driver::click(const std::string& tool) {
  std::vector<tx_custom_pointer> pairs;
  std::vector<tool_values> tools;
  for (const tx_custom_pointer toolbar : dialog_parts(docker_).toolbars) {
    for (const tool_entry& t : tools_of(toolbar)) {
      pairs.push_back(t.tool);
      tools.push_back(values_of(t));
    }
  }
  const lookup<std::size_t> found = find_tool(tools, tool);
  if (!found) return failure(found.refused());
  call(pairs[*found], &tx_action_tool_interface_0::invoke);
  return done();
}

command_outcome dialog_driver::press(const command& c) {
  if (c.what == verb::closebox) {
    if (press_close_box()) return {-1, {}, {}};
    return done();
  }
  std::vector<button_entry> shown = buttons_of(buttons_);
  std::erase_if(shown, [](const button_entry& b) { return !b.shown; });
  std::vector<std::string> captions;
  for (const button_entry& b : shown) captions.push_back(b.caption);
  const lookup<std::size_t> found = find_button(captions, c, language_);
  if (!found) return failure(found.refused());
  const std::int32_t index = shown[*found].index;
  if (call(buttons_, &tx_button_box_interface_2::press, index)) return {index, {}, {}};
  // Refused: the first faulty row, if any, is brought before the user.
  if (const dialog_parts parts(docker_); present(parts.outline)) select_first_faulty(parts.outline);
  return done();
}

std::optional<refusal> act_on_row(tx_custom_pointer outline, verb what, std::string_view address,
                                  std::string_view text) {
  const outline_reader reader(outline);
  const found_row found = find_row(reader, address);
  if (!present(found.row)) return found.refused;
  const tx_custom_pointer row = found.row;
  using table = tx_outline_interface_32;
  switch (what) {
    case verb::tick:
    case verb::untick: {
      const bool on = what == verb::tick;
      if (!present(reader.checks())) return refusal{refusal_reason::no_check_boxes};
      if (!reader.check_enabled(row)) {
        return refusal{refusal_reason::box_fixed, std::string(address)};
      }
      if (reader.checked(row) != on) {
        call(reader.checks(), &tx_outline_checks_interface_1::set_checked, row, on);
      }
      break;
    }
    case verb::select:
    case verb::deselect: {
      const bool on = what == verb::select;
      if (reader.selected(row) != on) call(outline, &table::set_selected, row, on);
      break;
    }
    case verb::expand:
    case verb::collapse: {
      const bool on = what == verb::expand;
      if (reader.row_count(row) == 0) {
        return refusal{refusal_reason::no_rows_under, std::string(address)};
      }
      if (reader.expanded(row) != on) call(outline, &table::set_expanded, row, on);
      break;
    }
    default: {
      const std::optional<std::size_t> column = reader.first_editable(row);
      if (!column) return refusal{refusal_reason::no_editable_cell, std::string(address)};
      // Esc drops what was typed: the cell keeps its text.
      if (what == verb::escape) return std::nullopt;
      const std::u16string typed = to_utf16(text);
      call(reader.columns()[*column], &tx_string_outline_column_interface_10::set_text, row,
           typed.c_str());
      return std::nullopt;
    }
  }
  return std::nullopt;
}

}  // namespace tx::host::dialog
