// A small dialog built from the plug-in's own toolkit classes, shaped like the rename dialog: a
// group box with an operation selector over two stacked panels, a toolbar with an enabled and a
// disabled tool, an outline of a few rows with a check column, the old names and the editable
// new names, in a docker, with an accepting and a closing button.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "toolkit/assisted_input.h"
#include "toolkit/button_box.h"
#include "toolkit/checkbox.h"
#include "toolkit/docker.h"
#include "toolkit/dropdown.h"
#include "toolkit/grid_layout.h"
#include "toolkit/groupbox.h"
#include "toolkit/labeled_element.h"
#include "toolkit/numeric_input.h"
#include "toolkit/outline.h"
#include "toolkit/outline_item.h"
#include "toolkit/stack_layout.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"
#include "tx/host/txk_msgs.h"

namespace tx::test {

struct node {
  std::u16string name;
  bool renameable = true;
  bool has_new_name = false;
  std::u16string new_name;
  bool selected = false, expanded = true, checked = false, changed_last = false;
  std::vector<std::unique_ptr<node>> children;

  node& add(std::u16string child, bool child_renameable = true) {
    auto& added = *children.emplace_back(std::make_unique<node>());
    added.name = std::move(child);
    added.renameable = child_renameable;
    return added;
  }
};

using row = toolkit::outline_item<node*>;
inline node* node_of(custom_pointer r) { return row::from(r).get(); }

class tree_outline final : public toolkit::outline {
 public:
  explicit tree_outline(node& top) : outline(15), top_(top) {}

  std::int32_t row_count(custom_pointer parent) override {
    const node* n = parent_of(parent);
    return n != nullptr ? static_cast<std::int32_t>(n->children.size()) : 0;
  }
  custom_pointer row(custom_pointer parent, std::int32_t i) override {
    const node* n = parent_of(parent);
    if (n == nullptr || i < 0 || static_cast<std::size_t>(i) >= n->children.size()) return {};
    return test::row(n->children[static_cast<std::size_t>(i)].get()).pointer();
  }
  bool selected(custom_pointer r) override { return node_of(r) && node_of(r)->selected; }
  void set_selected(custom_pointer r, bool on) override {
    if (node_of(r)) node_of(r)->selected = on;
  }
  bool expanded(custom_pointer r) override { return node_of(r) && node_of(r)->expanded; }
  void set_expanded(custom_pointer r, bool on) override {
    if (node_of(r)) node_of(r)->expanded = on;
  }
  bool faulty(custom_pointer r) override {
    return node_of(r) && node_of(r)->has_new_name && node_of(r)->new_name.empty();
  }

 private:
  node* parent_of(custom_pointer parent) const { return present(parent) ? node_of(parent) : &top_; }
  node& top_;
};

// The old names (read-only) or, with `pending`, the new names: editable on renameable rows,
// emphasized where changed last.
class name_column final : public toolkit::string_outline_column {
 public:
  name_column(const char16_t* id, std::int32_t header, bool pending)
      : string_outline_column(id, header, 20), pending_(pending) {}
  bool text(custom_pointer r, custom_pointer visitor) override {
    const node* n = node_of(r);
    return n && visit_text(visitor, (pending_ ? n->new_name : n->name).c_str());
  }
  bool editable(custom_pointer r) override {
    return pending_ && node_of(r) && node_of(r)->renameable;
  }
  bool emphasized(custom_pointer r) override {
    return pending_ && node_of(r) && node_of(r)->changed_last;
  }

 protected:
  void edit(custom_pointer r, std::u16string_view text) override {
    node_of(r)->has_new_name = true;
    node_of(r)->new_name = text;
    node_of(r)->changed_last = true;
  }

 private:
  bool pending_;
};

// Check boxes on every row but the ones that cannot be renamed.
class check_column final : public toolkit::outline_checks {
 public:
  bool checked(custom_pointer r) override { return node_of(r) && node_of(r)->checked; }
  bool enabled(custom_pointer r) override { return node_of(r) && node_of(r)->renameable; }

 protected:
  void check(custom_pointer r, bool on) override { node_of(r)->checked = on; }
};

using action_tool = toolkit::detail::tool<action_tool_impl, void>;

// Expand | Collapse ‖ Undo (disabled).
struct test_tools final : toolkit::with_tools {
  void publish(toolkit::tools_visitor& visitor) override {
    visitor.tool(u"test_expand_tool", expand.pointer());
    visitor.tool(u"test_collapse_tool", collapse.pointer());
    visitor.group();
    visitor.tool(u"test_undo_tool", undo.pointer());
  }
  action_tool expand, collapse, undo;
};

// The widget: the tree
//   Сцены 2D (not renameable)
//     Город
//       Дороги
//       Реки
//     Пусто
//   Сцены 3D (not renameable, collapsed)
//     Рельеф
// under the operations: "Найти и заменить" (a text input and a check box) and "Изменить
// регистр" (a drop-down and an integer input), the first shown.
struct test_widget {
  test_widget() {
    scenes.expanded = true;
    scenes3d.expanded = false;
    selector.add_item(150);
    selector.add_item(175);
    selector.set_selection(0);
    on_select = selector.changed.connect([this] { panels.set_shown(selector.selection() + 1); });
    find_panel.place(find.pointer());
    find_panel.place(match_case.pointer());
    case_mode.add_item(180);
    case_mode.add_item(177);
    case_mode.add_item(178);
    case_mode.set_selection(0);
    count.set_bounds(0, 100);
    case_panel.place(case_mode.pointer());
    case_panel.place(count.pointer());
    panels.add(custom_pointer{});
    panels.add(find_panel.pointer());
    panels.add(case_panel.pointer());
    panels.set_shown(1);
    operations.place(selector.pointer());
    operations.place(panels.pointer());
    group.content().place(operations.pointer());
    bar.tools().expand.configure(103, 103, 103, [this] { set_expanded(top, true); });
    bar.tools().collapse.configure(104, 104, 104, [this] { set_expanded(top, false); });
    bar.tools().undo.configure(100, 100, 100, [] {});
    bar.tools().undo.set_enabled(false);
    view.add_column(names);
    view.add_column(new_names);
    view.set_checks(&checks);
    root.place(group.pointer());
    root.place(bar.pointer());
    root.place(view.pointer());
  }
  custom_pointer layout() { return root.pointer(); }

  void set_expanded(node& n, bool on) {
    for (auto& child : n.children) {
      child->expanded = on;
      set_expanded(*child, on);
    }
    view.reload();
  }

  node top;
  node& scenes = top.add(u"Сцены 2D", false);
  node& city = scenes.add(u"Город");
  node& roads = city.add(u"Дороги");
  node& rivers = city.add(u"Реки");
  node& empty = scenes.add(u"Пусто");
  node& scenes3d = top.add(u"Сцены 3D", false);
  node& relief = scenes3d.add(u"Рельеф");

  toolkit::detail::labeled_element<toolkit::dropdown> selector{126};
  toolkit::stack_layout_ex panels;
  toolkit::grid_layout<2, 1> find_panel;
  toolkit::detail::labeled_element<toolkit::assisted_input> find{151};
  toolkit::checkbox match_case{153};
  toolkit::grid_layout<2, 1> case_panel;
  toolkit::detail::labeled_element<toolkit::dropdown> case_mode{176};
  toolkit::detail::labeled_element<toolkit::numeric_input<int>> count{230};
  toolkit::grid_layout<2, 1> operations;
  toolkit::groupbox<1, 1> group{125};
  toolkit::toolbar<test_tools, toolbar_impl, void> bar;
  name_column names{u"old", 50, false};
  name_column new_names{u"new", 51, true};
  check_column checks;
  tree_outline view{top};
  toolkit::grid_layout<3, 1> root;
  events::connection on_select;
};

// The frame and its buttons (mask 10: accept "Применить", close "Закрыть"). Accepting warns
// "Не заданы новые имена" and refuses while no row has a new name.
struct test_dialog {
  test_dialog() {
    buttons.set_accept([this] {
      if (!has_new_names(frame.widget().top)) {
        tx_show_wwarning(u"Не заданы новые имена");
        return false;
      }
      ++accepted;
      return true;
    });
  }
  static bool has_new_names(const node& n) {
    for (const auto& child : n.children) {
      if (child->has_new_name || has_new_names(*child)) return true;
    }
    return false;
  }
  test_widget& widget() { return frame.widget(); }

  toolkit::docker<test_widget> frame{10};
  toolkit::button_box buttons{10};
  int accepted = 0;
};

}  // namespace tx::test
