#include "tx_host/dialog/element_tree.h"

#include "tx/toolkit/docker.h"
#include "tx/toolkit/layout.h"
#include "tx_host/dialog/limits.h"

namespace tx::host::dialog {
namespace {

class describer {
 public:
  explicit describer(walk_scope scope) noexcept : scope_(scope) {}

  element_node node(tx_custom_pointer any, int depth, grid_cell cell) {
    element_node n;
    n.element = identify(any);
    n.cell = cell;
    n.depth = depth;
    children(n);
    return n;
  }

  void children(element_node& n) {
    n.children.clear();
    n.rows.clear();
    n.columns.clear();
    if (n.depth >= limits::element_depth) return;
    const tx_custom_pointer pair = n.element.pair;
    switch (n.element.kind) {
      case element_kind::docker: {
        element_collector content;
        call(pair, &tx_docker_interface_92::visit_content, content.pair());
        add(n, content, {});
        break;
      }
      case element_kind::groupbox: {
        element_collector content;
        call(pair, &tx_groupbox_interface_92::visit_content, content.pair());
        add(n, content, {});
        break;
      }
      case element_kind::stack:
        stack(n);
        break;
      case element_kind::grid:
        grid(n);
        break;
      default:
        break;
    }
  }

 private:
  void add(element_node& parent, const element_collector& found, grid_cell cell) {
    for (const tx_custom_pointer child : found.elements()) {
      parent.children.push_back(node(child, parent.depth + 1, cell));
    }
  }

  void stack(element_node& n) {
    using table = tx_stack_layout_interface_67;
    const std::int32_t count = bounded_count(call(n.element.pair, &table::entry_count));
    const std::int32_t shown = call(n.element.pair, &table::shown);
    for (std::int32_t i = 0; i < count; ++i) {
      if (scope_ == walk_scope::shown && i != shown) continue;
      element_collector entry;
      call(n.element.pair, &table::visit_entry, i, entry.pair());
      add(n, entry, {});
    }
  }

  void grid(element_node& n) {
    using table = tx_grid_layout_interface_91;
    const tx_custom_pointer pair = n.element.pair;
    const std::int32_t rows = bounded_count(call(pair, &table::row_count));
    const std::int32_t columns = bounded_count(call(pair, &table::column_count));
    for (std::int32_t r = 0; r < rows; ++r) {
      n.rows.push_back(
          {std::max(0, call(pair, &table::row_minimum, r)), call(pair, &table::row_stretch, r)});
    }
    for (std::int32_t c = 0; c < columns; ++c) {
      n.columns.push_back({std::max(0, call(pair, &table::column_minimum, c)),
                           call(pair, &table::column_stretch, c)});
    }
    // Visit cell finds (row, column) at index row + column, right for a single row or column
    // only; a grid of several rows and columns is read by its true cells, with their spans.
    const bool single_line = rows <= 1 || columns <= 1;
    for (std::int32_t r = 0; r < rows; ++r) {
      for (std::int32_t c = 0; c < columns; ++c) {
        element_collector found;
        std::int32_t span_rows = 1;
        std::int32_t span_columns = 1;
        if (single_line) {
          call(pair, &table::visit_cell, r, c, found.pair());
        } else {
          call(pair, &table::visit_grid_cell, r, c, &span_rows, &span_columns, found.pair());
        }
        add(n, found,
            {r, c, std::clamp(span_rows, 1, rows - r), std::clamp(span_columns, 1, columns - c)});
      }
    }
  }

  walk_scope scope_;
};

void walk_node(const element_node& n, element_listener& listener, walk_scope scope) {
  if (scope == walk_scope::shown && !element_visible(n.element)) return;
  switch (n.element.kind) {
    case element_kind::docker:
      for (const element_node& child : n.children) walk_node(child, listener, scope);
      break;
    case element_kind::groupbox:
      listener.enter_group(n.element);
      for (const element_node& child : n.children) walk_node(child, listener, scope);
      listener.leave_group(n.element);
      break;
    case element_kind::grid:
    case element_kind::stack:
      listener.layout(n.element);
      for (const element_node& child : n.children) walk_node(child, listener, scope);
      break;
    default:
      listener.leaf(n.element);
      break;
  }
}

}  // namespace

element_node describe(tx_custom_pointer root, walk_scope scope) {
  return describer(scope).node(root, 0, {});
}

void describe_children(element_node& node, walk_scope scope) { describer(scope).children(node); }

void walk(const element_node& root, element_listener& listener, walk_scope scope) {
  walk_node(root, listener, scope);
}

void walk(tx_custom_pointer root, element_listener& listener, walk_scope scope) {
  walk_node(describe(root, scope), listener, scope);
}

}  // namespace tx::host::dialog
