#include "tx_host/dialog/hostile_pass.h"

#include <algorithm>

#include "tx/toolkit/bitmap.h"
#include "tx/toolkit/button_box.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/docker.h"
#include "tx/toolkit/layout.h"
#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/picture_reader.h"
#include "tx_host/dialog/toolbar_reader.h"
#include "tx_host/services/string_collector.h"

namespace tx::host::dialog {
namespace {

constexpr tx_custom_pointer kNull{};

std::string answer(bool value) { return value ? "true" : "false"; }

class hostile_walker final : public element_listener {
 public:
  explicit hostile_walker(hostile_report& report) : report_(report) {}

  void docker(tx_custom_pointer d) {
    using table = tx_docker_interface_92;
    ++report_.elements;
    picture("docker.image", [d](tx_custom_pointer v) { return call(d, &table::image, v); });
    text("docker.caption", [d](tx_custom_pointer v) { return call(d, &table::caption, v); });
    made(1, [d] { call(d, &table::visit_content, kNull); });
    made(1, [d] { call(d, &table::set_host_reference, kNull); });
    walk(d, *this, walk_scope::all);
  }

  void buttons(tx_custom_pointer b) {
    using table = tx_button_box_interface_2;
    ++report_.elements;
    made(1, [b] { call(b, &table::set_host_reference, kNull); });
    made(1, [b] { call(b, &table::set_second_host_reference, kNull); });
    const std::int32_t count = bounded_count(call(b, &table::button_count));
    for (std::int32_t i = 0; i < count; ++i) {
      text("button_box.caption",
           [b, i](tx_custom_pointer v) { return call(b, &table::caption, i, v); });
    }
  }

  void enter_group(const element& e) override {
    using table = tx_groupbox_interface_92;
    const tx_custom_pointer g = e.pair;
    ++report_.elements;
    text("groupbox.caption", [g](tx_custom_pointer v) { return call(g, &table::caption, v); });
    text("groupbox.second_text",
         [g](tx_custom_pointer v) { return call(g, &table::second_text, v); });
    made(1, [g] { call(g, &table::visit_content, kNull); });
    made(1, [g] { call(g, &table::set_view, kNull); });
  }

  void layout(const element& e) override {
    ++report_.elements;
    if (e.kind == element_kind::grid) {
      grid(e.pair);
    } else {
      stack(e.pair);
    }
  }

  void leaf(const element& e) override {
    switch (e.kind) {
      case element_kind::label:
        label(e.pair);
        break;
      case element_kind::checkbox:
        checkbox(e.pair);
        break;
      case element_kind::dropdown:
        dropdown(e.pair);
        break;
      case element_kind::integer_input:
        integer_input(e.pair);
        break;
      case element_kind::assisted_input:
        assisted_input(e.pair);
        break;
      case element_kind::bitmap:
        bitmap(e.pair);
        break;
      case element_kind::outline:
        outline(e.pair);
        break;
      case element_kind::toolbar:
        toolbar(e.pair);
        break;
      default:
        return;  // an element this host does not know: nothing to call
    }
    ++report_.elements;
  }

 private:
  // `calls` calls that answer nothing.
  template <class Call>
  void made(std::size_t calls, Call&& c) {
    c();
    report_.calls += calls;
  }

  // A text operation asked with the null visitor, then with one: the answers must agree.
  template <class Ask>
  void text(const std::string& what, Ask&& ask) {
    const bool with_null = ask(kNull);
    string_collector collector;
    compare(what, with_null, ask(collector.pair()));
  }

  // A picture operation, likewise.
  template <class Ask>
  void picture(const std::string& what, Ask&& ask) {
    const bool with_null = ask(kNull);
    picture_collector collector;
    compare(what, with_null, ask(collector.pair()));
  }

  void compare(const std::string& what, bool with_null, bool with_visitor) {
    ++report_.calls;
    if (with_null != with_visitor) {
      report_.deviations.push_back(what + " answered " + answer(with_null) +
                                   " with a null visitor, " + answer(with_visitor) +
                                   " with a visitor");
    }
  }

  // A question about the null row: a row without content answers false.
  void about_null_row(const std::string& what, bool answered) {
    ++report_.calls;
    if (answered) report_.deviations.push_back(what + "(null row) answered true");
  }

  void grid(tx_custom_pointer g) {
    using table = tx_grid_layout_interface_91;
    const std::int32_t rows = bounded_count(call(g, &table::row_count));
    const std::int32_t columns = bounded_count(call(g, &table::column_count));
    for (std::int32_t r = 0; r < rows; ++r) {
      for (std::int32_t c = 0; c < columns; ++c) {
        made(1, [g, r, c] { call(g, &table::visit_cell, r, c, kNull); });
        made(1, [g, r, c] { call(g, &table::visit_grid_cell, r, c, nullptr, nullptr, kNull); });
      }
    }
    made(1, [g] { call(g, &table::set_view, kNull); });
  }

  void stack(tx_custom_pointer s) {
    using table = tx_stack_layout_interface_67;
    const std::int32_t count = bounded_count(call(s, &table::entry_count));
    for (std::int32_t i = 0; i < count; ++i) {
      made(1, [s, i] { call(s, &table::visit_entry, i, kNull); });
    }
    made(1, [s] { call(s, &table::set_view, kNull); });
  }

  void label(tx_custom_pointer l) {
    using table = tx_label_interface_2;
    text("label.text", [l](tx_custom_pointer v) { return call(l, &table::text, v); });
    made(1, [l] { call(l, &table::set_view, kNull); });
  }

  void checkbox(tx_custom_pointer c) {
    using table = tx_checkbox_interface_2;
    text("checkbox.caption", [c](tx_custom_pointer v) { return call(c, &table::caption, v); });
    text("checkbox.second_text",
         [c](tx_custom_pointer v) { return call(c, &table::second_text, v); });
    made(1, [c] { call(c, &table::set_view, kNull); });
  }

  void dropdown(tx_custom_pointer d) {
    using table = tx_dropdown_interface_3;
    text("dropdown.caption", [d](tx_custom_pointer v) { return call(d, &table::caption, v); });
    const std::int32_t count = bounded_count(call(d, &table::item_count));
    for (std::int32_t i = 0; i < count; ++i) {
      text("dropdown.item_text",
           [d, i](tx_custom_pointer v) { return call(d, &table::item_text, i, v); });
    }
    made(1, [d] { call(d, &table::set_view, kNull); });
  }

  void integer_input(tx_custom_pointer n) {
    using table = tx_integer_input_interface_6;
    text("integer_input.caption", [n](tx_custom_pointer v) { return call(n, &table::caption, v); });
    made(1, [n] { call(n, &table::set_view, kNull); });
  }

  void assisted_input(tx_custom_pointer a) {
    using table = tx_assisted_input_interface_3;
    text("assisted_input.caption",
         [a](tx_custom_pointer v) { return call(a, &table::caption, v); });
    made(1, [a] { call(a, &table::text, kNull); });
    made(1, [a] { call(a, &table::set_text, static_cast<const char16_t*>(nullptr)); });
    const std::int32_t count = bounded_count(call(a, &table::history_count));
    for (std::int32_t i = 0; i < count; ++i) {
      text("assisted_input.history_item",
           [a, i](tx_custom_pointer v) { return call(a, &table::history_item, i, v); });
    }
    made(1, [a] { call(a, &table::set_view, kNull); });
  }

  void bitmap(tx_custom_pointer b) {
    using table = tx_bitmap_interface_0;
    picture("bitmap.pixels", [b](tx_custom_pointer v) { return call(b, &table::pixels, v); });
    text("bitmap.hint", [b](tx_custom_pointer v) { return call(b, &table::hint, v); });
    made(1, [b] { call(b, &table::set_view, kNull); });
  }

  void outline(tx_custom_pointer o) {
    using table = tx_outline_interface_32;
    const outline_reader reader(o);
    std::vector<tx_custom_pointer> rows;
    collect_rows(reader, kNull, 0, rows);
    report_.rows += rows.size();

    about_null_row("outline.selected", call(o, &table::selected, kNull));
    made(1, [o] { call(o, &table::set_selected, kNull, true); });
    about_null_row("outline.expanded", call(o, &table::expanded, kNull));
    made(1, [o] { call(o, &table::set_expanded, kNull, false); });
    about_null_row("outline.faulty", call(o, &table::faulty, kNull));
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(reader.columns().size()); ++i) {
      made(1, [o, i] { call(o, &table::visit_column, i, kNull); });
    }
    made(1, [o] { call(o, &table::visit_checks, kNull); });
    for (const tx_custom_pointer column : reader.columns()) column_of(column, rows);
    if (present(reader.checks())) checks_of(reader.checks());
    made(1, [o] { call(o, &table::set_view, kNull); });
  }

  void collect_rows(const outline_reader& reader, tx_custom_pointer parent, std::size_t depth,
                    std::vector<tx_custom_pointer>& rows) {
    if (depth >= limits::row_depth) return;
    const std::int32_t count = std::min(reader.row_count(parent), limits::count);
    for (std::int32_t i = 0; i < count; ++i) {
      const tx_custom_pointer row = reader.row(parent, i);
      if (!present(row)) continue;
      rows.push_back(row);
      collect_rows(reader, row, depth + 1, rows);
    }
  }

  void column_of(tx_custom_pointer c, const std::vector<tx_custom_pointer>& rows) {
    using table = tx_string_outline_column_interface_10;
    ++report_.elements;
    text("column.id", [c](tx_custom_pointer v) { return call(c, &table::id, v); });
    text("column.header", [c](tx_custom_pointer v) { return call(c, &table::header, v); });
    string_collector collector;
    about_null_row("column.text",
                   call(c, &table::text, kNull, collector.pair()) || collector.visits() > 0);
    about_null_row("column.editable", call(c, &table::editable, kNull));
    about_null_row("column.emphasized", call(c, &table::emphasized, kNull));
    made(1, [c] { call(c, &table::set_text, kNull, u"—"); });
    for (const tx_custom_pointer row : rows) {
      text("column.text", [c, row](tx_custom_pointer v) { return call(c, &table::text, row, v); });
      made(1, [c, row] { call(c, &table::set_text, row, static_cast<const char16_t*>(nullptr)); });
    }
    made(1, [c] { call(c, &table::set_view, kNull); });
  }

  void checks_of(tx_custom_pointer c) {
    using table = tx_outline_checks_interface_1;
    ++report_.elements;
    about_null_row("checks.checked", call(c, &table::checked, kNull));
    made(1, [c] { call(c, &table::set_checked, kNull, true); });
    about_null_row("checks.enabled", call(c, &table::enabled, kNull));
    made(1, [c] { call(c, &table::set_view, kNull); });
  }

  void toolbar(tx_custom_pointer t) {
    using table = tx_tool_set_interface_5;
    const std::vector<tool_entry> tools = tools_of(t);
    const tx_custom_pointer set = call(t, &tx_toolbar_interface_6::tool_set);
    if (present(set)) {
      ++report_.elements;
      made(1, [set] { call(set, &table::visit_tools, kNull); });
      ++report_.calls;
      if (present(call(set, &table::find_tool, static_cast<const char16_t*>(nullptr)))) {
        report_.deviations.push_back("tool_set.find_tool(null id) answered a tool");
      }
    }
    for (const tool_entry& entry : tools) tool(entry.tool);
    made(1, [t] { call(t, &tx_toolbar_interface_6::set_view, kNull); });
  }

  void tool(tx_custom_pointer t) {
    using table = tx_action_tool_interface_0;
    ++report_.elements;
    picture("tool.image", [t](tx_custom_pointer v) { return call(t, &table::image, v); });
    text("tool.caption", [t](tx_custom_pointer v) { return call(t, &table::caption, v); });
    text("tool.hint", [t](tx_custom_pointer v) { return call(t, &table::hint, v); });
    const std::int32_t extra = bounded_count(call(t, &table::extra_image_count));
    for (std::int32_t i = 0; i < extra; ++i) {
      picture("tool.extra_image",
              [t, i](tx_custom_pointer v) { return call(t, &table::extra_image, i, v); });
    }
    made(1, [t] { call(t, &table::set_view, kNull); });
  }

  hostile_report& report_;
};

}  // namespace

hostile_report run_hostile_pass(tx_custom_pointer docker, tx_custom_pointer buttons) {
  hostile_report report;
  hostile_walker walker(report);
  if (present(docker)) walker.docker(docker);
  if (present(buttons)) walker.buttons(buttons);
  return report;
}

std::string describe(const hostile_report& report) {
  std::string text = "hostile: " + std::to_string(report.elements) + " elements and " +
                     std::to_string(report.rows) + " rows, " + std::to_string(report.calls) +
                     " calls with null pairs and null texts; ";
  const std::size_t count = report.deviations.size();
  if (count == 0) {
    text += "every answer neutral\n";
  } else {
    text.append(std::to_string(count)).append(count == 1 ? " answer" : " answers");
    text += " not neutral:\n";
  }
  for (const std::string& line : report.deviations) text += "hostile: " + line + "\n";
  return text;
}

}  // namespace tx::host::dialog
