#include "tx_host/dialog/elements.h"

#include <algorithm>
#include <array>

#include "tx/toolkit/bitmap.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/docker.h"
#include "tx/toolkit/layout.h"
#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"

namespace tx::host::dialog {
namespace {

struct kind_name {
  element_kind kind;
  const char* name;
};

constexpr std::array<kind_name, 12> kKinds{{
    {element_kind::docker, TX_DOCKER_INTERFACE_92},
    {element_kind::grid, TX_GRID_LAYOUT_INTERFACE_91},
    {element_kind::groupbox, TX_GROUPBOX_INTERFACE_92},
    {element_kind::stack, TX_STACK_LAYOUT_INTERFACE_67},
    {element_kind::label, TX_LABEL_INTERFACE_2},
    {element_kind::checkbox, TX_CHECKBOX_INTERFACE_2},
    {element_kind::dropdown, TX_DROPDOWN_INTERFACE_3},
    {element_kind::integer_input, TX_INTEGER_INPUT_INTERFACE_6},
    {element_kind::assisted_input, TX_ASSISTED_INPUT_INTERFACE_3},
    {element_kind::outline, TX_OUTLINE_INTERFACE_32},
    {element_kind::toolbar, TX_TOOLBAR_INTERFACE_6},
    {element_kind::bitmap, TX_BITMAP_INTERFACE_0},
}};

// Deeper than any real dialog: a layout that contains itself stops here.
constexpr int kMaxDepth = 64;
// More cells than any real grid: a grid reporting absurd counts is read this far.
constexpr std::int32_t kMaxLines = 1000;

constexpr tx_element_visitor_interface_0 kVisitorTable{
    &root_slot,
    [](void* self, tx_custom_pointer e) noexcept {
      try {
        object_of<element_collector>(self).visit(e);
      } catch (...) {
        // Out of memory: the element is not shown.
      }
    },
};
constexpr interface_entry kVisitorInterfaces[]{{TX_ELEMENT_VISITOR_INTERFACE_0, &kVisitorTable}};

class walker {
 public:
  walker(element_listener& listener, walk_scope scope) : listener_(listener), scope_(scope) {}

  void element_at(tx_custom_pointer any, int depth) {
    if (depth > kMaxDepth) return;
    const element e = identify(any);
    if (scope_ == walk_scope::shown && !element_visible(e)) return;
    switch (e.kind) {
      case element_kind::docker: {
        element_collector content;
        call(e.pair, &tx_docker_interface_92::visit_content, content.pair());
        for (const tx_custom_pointer child : content.elements()) element_at(child, depth + 1);
        break;
      }
      case element_kind::grid:
        listener_.layout(e);
        grid(e.pair, depth);
        break;
      case element_kind::groupbox: {
        listener_.enter_group(e);
        element_collector content;
        call(e.pair, &tx_groupbox_interface_92::visit_content, content.pair());
        for (const tx_custom_pointer child : content.elements()) element_at(child, depth + 1);
        listener_.leave_group(e);
        break;
      }
      case element_kind::stack:
        listener_.layout(e);
        stack(e.pair, depth);
        break;
      default:
        listener_.leaf(e);
        break;
    }
  }

 private:
  void grid(tx_custom_pointer grid, int depth) {
    using table = tx_grid_layout_interface_91;
    const std::int32_t rows = std::clamp(call(grid, &table::row_count), 0, kMaxLines);
    const std::int32_t columns = std::clamp(call(grid, &table::column_count), 0, kMaxLines);
    // Visit cell finds (row, column) at index row + column, right for a single row or column
    // only; a grid of several rows and columns is read by its true cells.
    const bool single_line = rows <= 1 || columns <= 1;
    for (std::int32_t r = 0; r < rows; ++r) {
      for (std::int32_t c = 0; c < columns; ++c) {
        element_collector cell;
        if (single_line) {
          call(grid, &table::visit_cell, r, c, cell.pair());
        } else {
          call(grid, &table::visit_grid_cell, r, c, nullptr, nullptr, cell.pair());
        }
        for (const tx_custom_pointer child : cell.elements()) element_at(child, depth + 1);
      }
    }
  }

  void stack(tx_custom_pointer stack, int depth) {
    using table = tx_stack_layout_interface_67;
    const std::int32_t count = std::clamp(call(stack, &table::entry_count), 0, kMaxLines);
    const std::int32_t shown = call(stack, &table::shown);
    for (std::int32_t i = 0; i < count; ++i) {
      if (scope_ == walk_scope::shown && i != shown) continue;
      element_collector entry;
      call(stack, &table::visit_entry, i, entry.pair());
      for (const tx_custom_pointer child : entry.elements()) element_at(child, depth + 1);
    }
  }

  element_listener& listener_;
  walk_scope scope_;
};

}  // namespace

element identify(tx_custom_pointer any) noexcept {
  for (const kind_name& k : kKinds) {
    if (const tx_custom_pointer found = query(any, k.name); present(found)) return {k.kind, found};
  }
  return {element_kind::unknown, any};
}

bool element_visible(const element& e) noexcept {
  switch (e.kind) {
    case element_kind::label:
      return call(e.pair, &tx_label_interface_2::visible);
    case element_kind::checkbox:
      return call(e.pair, &tx_checkbox_interface_2::visible);
    case element_kind::dropdown:
      return call(e.pair, &tx_dropdown_interface_3::visible);
    case element_kind::integer_input:
      return call(e.pair, &tx_integer_input_interface_6::visible);
    case element_kind::assisted_input:
      return call(e.pair, &tx_assisted_input_interface_3::visible);
    default:
      return true;
  }
}

bool element_enabled(const element& e) noexcept {
  switch (e.kind) {
    case element_kind::checkbox:
      return call(e.pair, &tx_checkbox_interface_2::enabled);
    case element_kind::dropdown:
      return call(e.pair, &tx_dropdown_interface_3::enabled);
    case element_kind::integer_input:
      return call(e.pair, &tx_integer_input_interface_6::enabled);
    case element_kind::assisted_input:
      return call(e.pair, &tx_assisted_input_interface_3::enabled);
    default:
      return true;
  }
}

std::optional<std::string> field_caption(const element& e) {
  return collect_text([&e](tx_custom_pointer visitor) {
    switch (e.kind) {
      case element_kind::checkbox:
        return call(e.pair, &tx_checkbox_interface_2::caption, visitor);
      case element_kind::dropdown:
        return call(e.pair, &tx_dropdown_interface_3::caption, visitor);
      case element_kind::integer_input:
        return call(e.pair, &tx_integer_input_interface_6::caption, visitor);
      case element_kind::assisted_input:
        return call(e.pair, &tx_assisted_input_interface_3::caption, visitor);
      default:
        return false;
    }
  });
}

tx_custom_pointer element_collector::pair() noexcept { return {&kVisitorTable, object_half()}; }

std::span<const interface_entry> element_collector::interfaces() const noexcept {
  return kVisitorInterfaces;
}

void walk(tx_custom_pointer root, element_listener& listener, walk_scope scope) {
  walker(listener, scope).element_at(root, 0);
}

}  // namespace tx::host::dialog
