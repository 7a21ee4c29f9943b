// What the dialog window prints (the text host's form, read back from the controls) and the
// parts of it that a script's commands act on, found afresh each time.
#include "dialog_window.h"
#include "field_controls.h"
#include "native.h"
#include "outline_control.h"
#include "toolbar_control.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/dialog/vocabulary.h"
#include "window_access_keys.h"

namespace tx::host::gui {
namespace {

using dialog::element_kind;
namespace text = dialog::text;

// The shown controls of type Control under `node`, in the order the dialog shows them.
template <class Control>
void collect_shown(const window_node& node, std::vector<Control*>& found) {
  if (!node.shown) return;
  if (auto* c = dynamic_cast<Control*>(node.leaf.get())) found.push_back(c);
  for (const auto& child : node.children) collect_shown(*child, found);
}

}  // namespace

std::string dialog_window::render() const {
  const dialog::vocabulary& words = dialog::vocabulary_for(language_);
  text::lines out;
  const std::string title = window_text(window_);
  out.line(text::opening(title.empty() ? std::nullopt : std::optional<std::string>(title)));
  out.enter();
  int fields = 0;
  auto print = [&](auto&& self, const window_node& node) -> void {
    if (!node.shown) return;
    if (node.leaf) {
      std::vector<std::string> lines;
      node.leaf->print(lines, words);
      for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i == 0 && node.leaf->is_field()) {
          out.line(std::to_string(++fields) + ") " + lines[i]);
        } else {
          out.line(lines[i]);
        }
      }
      return;
    }
    if (node.element().kind == element_kind::groupbox) {
      const std::string caption = window_text(node.frame.get());
      out.line(text::opening(caption.empty() ? std::nullopt : std::optional<std::string>(caption)));
      out.enter();
      for (const auto& child : node.children) self(self, *child);
      out.leave();
      out.line("└");
      return;
    }
    for (const auto& child : node.children) self(self, *child);
  };
  print(print, *root_);
  out.leave();
  out.line("└");
  std::vector<std::string> captions;
  for (const auto& [shown_button, index] : buttons_shown_) {
    (void)index;
    if (marked_visible(shown_button)) captions.push_back(caption_text(shown_button));
  }
  if (const std::string row = text::buttons(captions); !row.empty()) out.line(row);
  return out.take();
}

std::vector<field_control*> dialog_window::fields() const {
  std::vector<field_control*> found;
  collect_shown(*root_, found);
  return found;
}

dropdown_control* dialog_window::operation_selector() const {
  // The drop-down that comes right before the stacked panels.
  dropdown_control* last = nullptr;
  dropdown_control* selector = nullptr;
  auto visit = [&](auto&& self, const window_node& node) -> void {
    if (!node.shown || selector != nullptr) return;
    if (node.element().kind == element_kind::stack && last != nullptr) {
      selector = last;
      return;
    }
    if (auto* d = dynamic_cast<dropdown_control*>(node.leaf.get())) last = d;
    for (const auto& child : node.children) self(self, *child);
  };
  visit(visit, *root_);
  return selector;
}

outline_control* dialog_window::outline() const {
  std::vector<outline_control*> found;
  collect_shown(*root_, found);
  return found.empty() ? nullptr : found.front();
}

std::vector<toolbar_control*> dialog_window::toolbars() const {
  std::vector<toolbar_control*> found;
  collect_shown(*root_, found);
  return found;
}

std::vector<dialog_window::button> dialog_window::shown_buttons() const {
  std::vector<button> found;
  for (const auto& [window, index] : buttons_shown_) {
    if (marked_visible(window)) found.push_back({window, caption_text(window), index});
  }
  return found;
}

}  // namespace tx::host::gui
