// Reading again what the plug-in told: a grid or a stack whose layout changed is described and
// built afresh, a group box's caption read again, and every control told of its element's
// changes. Replaced subtrees stay alive until the whole batch has been read, so that a batch that
// names a layout and an element inside it never reads a destroyed node.
#include "dialog_window.h"
#include "native.h"
#include "outline_control.h"
#include "tx/toolkit/layout.h"
#include "window_constants.h"

namespace tx::host::gui {

using dialog::element_kind;

void dialog_window::changed(void* element, std::uint32_t what) {
  pending_[element] |= what;
  // The loop is woken to read it; the reading is the loop's, after the message it is handling.
  if (!wake_posted_ && window_ != nullptr) {
    wake_posted_ = PostMessageW(window_, kWakeForChanges, 0, 0) != FALSE;
  }
}

void dialog_window::refresh_pending() {
  read_pending();
  if (present(reveal_)) {
    if (outline_control* list = outline(); list != nullptr) list->reveal(reveal_);
    reveal_ = {};
    read_pending();
  }
}

void dialog_window::read_pending() {
  if (pending_.empty()) return;
  const std::unordered_map<void*, std::uint32_t> pending = std::move(pending_);
  pending_.clear();
  auto node_of = [this](void* element) -> window_node* {
    const auto found = nodes_.find(element);
    return found != nodes_.end() ? found->second : nullptr;
  };
  // Destroyed once every node of the batch has been read.
  std::vector<std::unique_ptr<window_node>> replaced;
  bool rebuilt = false;
  for (const auto& [element, what] : pending) {
    window_node* node = node_of(element);
    if (node == nullptr) continue;
    const element_kind kind = node->element().kind;
    if ((kind == element_kind::stack || kind == element_kind::grid) &&
        (what & TX_CHANGED_LAYOUT) != 0) {
      for (auto& child : node->children) replaced.push_back(std::move(child));
      node->children.clear();
      dialog::describe_children(node->described, dialog::walk_scope::shown);
      build_children(*node, std::move(node->described.children));
      node->described.children.clear();
      rebuilt = true;
    } else if (kind == element_kind::groupbox && (what & TX_CHANGED_TEXTS) != 0) {
      set_window_text(node->frame.get(), dialog::collect_text([node](tx_custom_pointer v) {
                                           return call(node->element().pair,
                                                       &tx_groupbox_interface_92::caption, v);
                                         }).value_or(""));
    }
  }
  if (rebuilt) {
    nodes_.clear();
    register_node(*root_);
    order_tabs();
  }
  bool resize = rebuilt;
  for (const auto& [element, what] : pending) {
    window_node* node = node_of(element);
    if (node == nullptr || !node->leaf) continue;
    node->leaf->refresh(what);
    if ((what & TX_CHANGED_STATE) != 0) {
      const bool visible = dialog::element_visible(node->element());
      if (visible != node->shown) {
        node->shown = visible;
        node->leaf->show(visible);
        resize = true;
      }
    }
    if ((what & (TX_CHANGED_TEXTS | TX_CHANGED_ITEMS)) != 0) resize = true;
  }
  if (resize) {
    assign_access_keys();
    align_captions();
    fit();
    layout();
  }
  if (rebuilt) {
    // A control that had the focus may have gone with its panel.
    replaced.clear();
    keep_focus();
  }
}

}  // namespace tx::host::gui
