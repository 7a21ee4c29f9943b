#include "element/tree_tools.h"

#include "element/project_rename_widget.h"
#include "tree/execute.h"
#include "tx/host/txk_basic.h"

namespace tx::element::detail {
namespace {

// The last tool of each group: a group break follows it.
constexpr bool ends_group(std::size_t i) noexcept {
  return i == tree_tools::collapse || i == tree_tools::invert || i == tree_tools::redo;
}

}  // namespace

const std::array<const char16_t*, tree_tools::count> tree_tools::ids{
    u"tx_prjrename_tree_expanded_on_tool", u"tx_prjrename_tree_expanded_off_tool",
    u"tx_prjrename_tree_select_tool",      u"tx_prjrename_tree_unselect_tool",
    u"tx_prjrename_tree_invert_tool",      u"tx_prjrename_tree_undo_tool",
    u"tx_prjrename_tree_redo_tool",        u"tx_prjrename_tree_apply_operation_tool"};

tree_tools::tree_tools(project_rename_widget& context) : context_(&context) {
  configure();
  history_ = context_->names.changed.connect([this] { follow_history(); });
  // Both open enabled and are greyed out now, their hosts told if already set.
  tools_[undo].set_enabled(false);
  tools_[redo].set_enabled(false);
}

void tree_tools::configure() {
  project_rename_widget& c = *context_;
  // A tree action works on the selected rows' subtrees when a row is selected, on every row
  // otherwise; the view then shows the new states.
  const auto on_tree = [&c](auto action) {
    return [&c, action] {
      if (c.root) action(*c.root, c.root->any_selected());
      c.redraw();
    };
  };
  tools_[expand].configure(103, 103, 103, on_tree([](prjrename_tree_group& root, bool selected) {
                             root.set_expanded(true, selected);
                           }));
  tools_[collapse].configure(104, 104, 104, on_tree([](prjrename_tree_group& root, bool selected) {
                               root.set_expanded(false, selected);
                             }));
  tools_[select].configure(-118, 10012, 10012,
                           on_tree([](prjrename_tree_group& root, bool selected) {
                             root.set_check(tx_bool_to_3state(true), selected);
                           }));
  tools_[unselect].configure(-119, 10014, 10014,
                             on_tree([](prjrename_tree_group& root, bool selected) {
                               root.set_check(tx_bool_to_3state(false), selected);
                             }));
  tools_[invert].configure(-120, 10015, 10015,
                           on_tree([](prjrename_tree_group& root, bool selected) {
                             root.set_check(check_invert, selected);
                           }));
  tools_[undo].configure(100, 100, 100, [&c] { c.names.undo(); });
  tools_[redo].configure(101, 101, 101, [&c] { c.names.redo(); });
  tools_[apply_operation].configure(0, 127, 127, [&c] {
    if (c.root) execute_operations(c.operations, *c.root, c.names);
  });
}

void tree_tools::publish(toolkit::tools_visitor& visitor) {
  for (std::size_t i = 0; i < count; ++i) {
    visitor.tool(ids[i], tools_[i].pointer());
    if (ends_group(i)) visitor.group();
  }
}

void tree_tools::follow_history() noexcept {
  tools_[undo].set_enabled(context_->names.can_undo());
  tools_[redo].set_enabled(context_->names.can_redo());
}

}  // namespace tx::element::detail
