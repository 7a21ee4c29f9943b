#include "tx_host/dialog/elements.h"

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

}  // namespace tx::host::dialog
