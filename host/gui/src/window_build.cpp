// The dialog window's controls, made from the description of the plug-in's elements: one native
// control per leaf, a frame per group box, the grids' and stacks' places as the nodes between;
// and the button box's buttons.
#include <algorithm>

#include "dialog_window.h"
#include "field_controls.h"
#include "native.h"
#include "outline_control.h"
#include "toolbar_control.h"
#include "tx/toolkit/layout.h"
#include "tx_host/dialog/button_reader.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/toolbar_reader.h"
#include "tx_host/dialog/vocabulary.h"
#include "window_constants.h"

namespace tx::host::gui {

using dialog::element_kind;

void dialog_window::build() {
  root_ = build_node(dialog::describe(docker_, dialog::walk_scope::shown));
  build_buttons();
  nodes_.clear();
  register_node(*root_);
  assign_access_keys();
}

void dialog_window::build_buttons() {
  // The buttons, in the box's order. None is the default: Enter in a field or in the list must
  // never press the accepting button and commit the project; Enter presses a button only when
  // that button has the focus.
  for (const dialog::button_entry& b : dialog::buttons_of(buttons_)) {
    if (!b.shown) continue;
    const int id = kFirstButtonId + b.index;
    HWND made = CreateWindowExW(0, L"BUTTON", wide(b.caption).c_str(),
                                WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, 0, 0, 0, 0,
                                window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                GetModuleHandleW(nullptr), nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(metrics_.font), FALSE);
    buttons_shown_.emplace_back(made, b.index);
  }
}

std::unique_ptr<window_node> dialog_window::build_node(dialog::element_node described) {
  auto node = std::make_unique<window_node>();
  std::vector<dialog::element_node> children = std::move(described.children);
  described.children.clear();
  node->described = std::move(described);
  const dialog::element& e = node->element();
  HWND last_before = GetWindow(GetWindow(window_, GW_CHILD), GW_HWNDLAST);
  switch (e.kind) {
    case element_kind::grid:
    case element_kind::stack:
    case element_kind::docker:
      build_children(*node, std::move(children));
      break;
    case element_kind::groupbox: {
      const std::optional<std::string> caption = dialog::collect_text([&e](tx_custom_pointer v) {
        return call(e.pair, &tx_groupbox_interface_92::caption, v);
      });
      node->frame.reset(
          make_child(window_, L"BUTTON", caption.value_or(""), BS_GROUPBOX, metrics_));
      build_children(*node, std::move(children));
      // Under the controls it frames.
      SetWindowPos(node->frame.get(), HWND_BOTTOM, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      break;
    }
    case element_kind::outline:
      node->leaf = std::make_unique<outline_control>(window_, e.pair, metrics_);
      break;
    case element_kind::toolbar:
      node->leaf = std::make_unique<toolbar_control>(window_, e.pair, metrics_);
      break;
    default:
      node->leaf = make_plain_control(window_, e, metrics_);
      break;
  }
  if (node->leaf) {
    // A new child window goes to the bottom of its siblings: the leaf's windows are the last.
    node->windows = windows_after(window_, last_before);
    node->shown = dialog::element_visible(e);
    if (!node->shown) node->leaf->show(false);
  }
  return node;
}

void dialog_window::build_children(window_node& node, std::vector<dialog::element_node> described) {
  for (dialog::element_node& child : described) {
    node.children.push_back(build_node(std::move(child)));
  }
}

void dialog_window::register_node(window_node& node) {
  nodes_[node.element().pair.object] = &node;
  if (node.element().kind == element_kind::outline) {
    const dialog::outline_reader reader(node.element().pair);
    for (const tx_custom_pointer column : reader.columns()) nodes_[column.object] = &node;
    if (present(reader.checks())) nodes_[reader.checks().object] = &node;
  } else if (node.element().kind == element_kind::toolbar) {
    for (const dialog::tool_entry& t : dialog::tools_of(node.element().pair)) {
      nodes_[t.tool.object] = &node;
    }
  }
  for (const auto& child : node.children) register_node(*child);
}

void dialog_window::align_captions() {
  // The fields in the first column of their grid share one caption width across the dialog, the
  // widest caption of every panel, shown or not, so that the boxes stand still when the shown
  // operation changes; a field further right keeps its own.
  std::vector<field_control*> first_column;
  int widest = 0;
  auto visit = [&](auto&& self, window_node& node) -> void {
    for (const auto& child : node.children) {
      if (auto* field = dynamic_cast<field_control*>(child->leaf.get())) {
        const int width = field->caption_width(metrics_);
        if (child->described.cell.column == 0) {
          first_column.push_back(field);
          widest = std::max(widest, width);
        } else {
          field->set_caption_column(width);
        }
      }
      self(self, *child);
    }
  };
  visit(visit, *root_);
  auto described = [&](auto&& self, const dialog::element_node& node) -> void {
    for (const dialog::element_node& child : node.children) {
      if (child.cell.column == 0) widest = std::max(widest, caption_width(child.element, metrics_));
      self(self, child);
    }
  };
  described(described, dialog::describe(docker_, dialog::walk_scope::all));
  for (field_control* field : first_column) field->set_caption_column(widest);
}

}  // namespace tx::host::gui
