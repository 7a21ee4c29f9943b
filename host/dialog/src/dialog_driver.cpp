#include "tx_host/dialog/dialog_driver.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "tx/toolkit/button_box.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/button_reader.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/dialog/toolbar_reader.h"

namespace tx::host::dialog {
namespace {

command_outcome failure(std::string error) { return {std::nullopt, {}, std::move(error)}; }
command_outcome done() { return {}; }

// The index of the drop-down item captioned `value`, or else numbered `value` (1-based).
std::optional<std::int32_t> dropdown_item(tx_custom_pointer dropdown, std::string_view value) {
  using table = tx_dropdown_interface_3;
  const std::int32_t count = call(dropdown, &table::item_count);
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<std::string> text =
        collect_text([&](tx_custom_pointer v) { return call(dropdown, &table::item_text, i, v); });
    if (text && *text == value) return i;
  }
  const std::optional<std::size_t> n = position(value);
  if (n && *n <= static_cast<std::size_t>(count)) return static_cast<std::int32_t>(*n - 1);
  return std::nullopt;
}

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

command_outcome dialog_driver::choose_operation(const std::string& operation) {
  const dialog_parts parts(docker_);
  if (!parts.selector) return failure("the dialog has no operation selector");
  if (!element_enabled(*parts.selector)) return failure("the operation selector is disabled");
  const std::optional<std::int32_t> item = dropdown_item(parts.selector->pair, operation);
  if (!item) return failure("no operation " + quoted(operation));
  call(parts.selector->pair, &tx_dropdown_interface_3::select, *item);
  return done();
}

command_outcome dialog_driver::set_field(const std::string& field, const std::string& value) {
  const dialog_parts parts(docker_);
  const element* target = nullptr;
  if (const std::optional<std::size_t> n = position(field)) {
    if (*n > parts.fields.size()) return failure("no field " + std::to_string(*n));
    target = &parts.fields[*n - 1];
  } else {
    for (const element& e : parts.fields) {
      if (bare(field_caption(e).value_or("")) != bare(field)) continue;
      if (target != nullptr) {
        return failure("more than one field is captioned " + quoted(field) + ": give its number");
      }
      target = &e;
    }
    if (target == nullptr) return failure("no field " + quoted(field));
  }
  if (!element_enabled(*target)) return failure("field " + quoted(field) + " is disabled");
  switch (target->kind) {
    case element_kind::checkbox: {
      const std::optional<bool> on = on_off(value);
      if (!on) return failure(quoted(value) + " is neither on nor off");
      call(target->pair, &tx_checkbox_interface_2::set_checked, *on);
      break;
    }
    case element_kind::dropdown: {
      const std::optional<std::int32_t> item = dropdown_item(target->pair, value);
      if (!item) return failure("field " + quoted(field) + " has no item " + quoted(value));
      call(target->pair, &tx_dropdown_interface_3::select, *item);
      break;
    }
    case element_kind::integer_input: {
      const std::optional<std::int32_t> n = whole_number(value);
      if (!n) return failure(quoted(value) + " is not a whole number");
      call(target->pair, &tx_integer_input_interface_6::set_value, *n);
      break;
    }
    default: {
      const std::u16string text = to_utf16(value);
      call(target->pair, &tx_assisted_input_interface_3::set_text, text.c_str());
      break;
    }
  }
  return done();
}

command_outcome dialog_driver::row_command(const command& c) {
  const dialog_parts parts(docker_);
  if (!present(parts.outline)) return failure("the dialog has no outline");
  return failure(act_on_row(parts.outline, c.what, c.arguments.at(0),
                            c.arguments.size() > 1 ? c.arguments[1] : std::string()));
}

command_outcome dialog_driver::click(const std::string& tool) {
  return failure(click_tool(dialog_parts(docker_).toolbars, tool));
}

command_outcome dialog_driver::press(const command& c) {
  if (c.what == verb::closebox) {
    if (press_close_box()) return {-1, {}, {}};
    return done();
  }
  std::vector<button_entry> shown = buttons_of(buttons_);
  std::erase_if(shown, [](const button_entry& b) { return !b.shown; });
  const button_entry* target = nullptr;
  if (c.what == verb::press) {
    const std::string& wanted = c.arguments.at(0);
    for (const button_entry& b : shown) {
      if (b.caption == wanted && target == nullptr) target = &b;
    }
    const std::optional<std::size_t> n = position(wanted);
    if (target == nullptr && n && *n <= shown.size()) target = &shown[*n - 1];
    if (target == nullptr) return failure("no button " + quoted(wanted));
  } else {
    const button_role role = c.what == verb::accept ? button_role::accept : button_role::close;
    for (const button_entry& b : shown) {
      if (role_of(b.caption, language_) == role && target == nullptr) target = &b;
    }
    if (target == nullptr) {
      return failure(role == button_role::accept ? "the dialog has no accepting button"
                                                 : "the dialog has no closing button");
    }
  }
  if (call(buttons_, &tx_button_box_interface_2::press, target->index)) {
    return {target->index, {}, {}};
  }
  return done();
}

std::string act_on_row(tx_custom_pointer outline, verb what, std::string_view address,
                       std::string_view text) {
  const outline_reader reader(outline);
  const found_row found = find_row(reader, address);
  if (!present(found.row)) return found.error;
  const tx_custom_pointer row = found.row;
  using table = tx_outline_interface_32;
  switch (what) {
    case verb::tick:
    case verb::untick: {
      const bool on = what == verb::tick;
      if (!present(reader.checks())) return "the rows have no check boxes";
      if (!reader.check_enabled(row)) {
        return "the box of row " + quoted(address) + " cannot be changed";
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
        return "row " + quoted(address) + " has no rows under it";
      }
      if (reader.expanded(row) != on) call(outline, &table::set_expanded, row, on);
      break;
    }
    default: {
      for (std::size_t column = 0; column < reader.columns().size(); ++column) {
        if (!reader.editable(column, row)) continue;
        // Esc drops what was typed: the cell keeps its text.
        if (what == verb::escape) return {};
        const std::u16string typed = to_utf16(text);
        call(reader.columns()[column], &tx_string_outline_column_interface_10::set_text, row,
             typed.c_str());
        return {};
      }
      return "row " + quoted(address) + " has no cell that can be edited";
    }
  }
  return {};
}

std::string click_tool(const std::vector<tx_custom_pointer>& toolbars, std::string_view tool) {
  std::vector<tool_entry> tools;
  for (const tx_custom_pointer toolbar : toolbars) {
    for (tool_entry& t : tools_of(toolbar)) tools.push_back(std::move(t));
  }
  auto found = std::find_if(tools.begin(), tools.end(),
                            [&tool](const tool_entry& t) { return t.id == tool; });
  if (found == tools.end()) {
    found = std::find_if(tools.begin(), tools.end(),
                         [&tool](const tool_entry& t) { return tool_caption(t.tool) == tool; });
  }
  if (found == tools.end()) return "no tool " + quoted(tool);
  if (!tool_visible(found->tool)) return "tool " + quoted(tool) + " is hidden";
  if (!tool_enabled(found->tool)) return "tool " + quoted(tool) + " is disabled";
  call(found->tool, &tx_action_tool_interface_0::invoke);
  return {};
}

std::string quoted(std::string_view text) {
  // Built by appending: mingw's g++ 12 at -O3 warns falsely on a literal + std::string here.
  std::string out(1, '"');
  out.append(text).push_back('"');
  return out;
}

std::optional<std::int32_t> whole_number(std::string_view text) {
  std::int32_t n = 0;
  const char* first = text.data();
  const char* last = text.data() + text.size();
  if (first != last && *first == '+') ++first;
  const auto [end, error] = std::from_chars(first, last, n);
  if (first == last || error != std::errc() || end != last) return std::nullopt;
  return n;
}

std::optional<std::size_t> position(std::string_view text) {
  if (text.empty() ||
      !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  const std::optional<std::int32_t> n = whole_number(text);
  if (!n || *n < 1) return std::nullopt;
  return static_cast<std::size_t>(*n);
}

std::string_view bare(std::string_view caption) noexcept {
  while (!caption.empty() && (caption.back() == ':' || caption.back() == ' ')) {
    caption.remove_suffix(1);
  }
  return caption;
}

std::optional<bool> on_off(std::string_view value) {
  for (const std::string_view on : {"on", "yes", "true", "1"}) {
    if (value == on) return true;
  }
  for (const std::string_view off : {"off", "no", "false", "0"}) {
    if (value == off) return false;
  }
  return std::nullopt;
}

}  // namespace tx::host::dialog
