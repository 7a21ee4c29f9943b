// tree_tools: the tools of the element tree's toolbar.
//
// Eight tools in four groups — expand and collapse; tick all, untick all, invert ticks; undo and
// redo; Execute — plus a ninth that is built with defaults and never published. Expand, collapse
// and the three tick tools act on the selected rows with their subtrees when a row is selected,
// on the whole tree otherwise, then ask the view to redraw. Undo and redo open disabled and
// follow the name store's history.
#pragma once

#include <array>
#include <cstddef>

#include "toolkit/event.h"
#include "toolkit/tool.h"
#include "toolkit/tools.h"

namespace tx {
class project_rename_widget;
}

namespace tx::element::detail {

class tree_tools final : public toolkit::with_tools {
 public:
  using tool_type = toolkit::detail::tool<action_tool_impl, void>;

  // The tools in toolbar order.
  enum index : std::size_t {
    expand,
    collapse,
    select,
    unselect,
    invert,
    undo,
    redo,
    apply_operation,
    count
  };
  // The id each tool is published under, in toolbar order.
  static const std::array<const char16_t*, count> ids;

  explicit tree_tools(project_rename_widget& context);

  // Publishes the eight tools in toolbar order, with a group break between two groups.
  void publish(toolkit::tools_visitor& visitor) override;

  tool_type& tool(index which) noexcept { return tools_[which]; }

 private:
  void configure();
  // Brings the undo and redo tools' enabled flags in line with the history; a tool's host is
  // told only when its flag really changes.
  void follow_history() noexcept;

  project_rename_widget* context_;
  std::array<tool_type, count> tools_;
  tool_type spare_;
  events::connection history_;
};

}  // namespace tx::element::detail
