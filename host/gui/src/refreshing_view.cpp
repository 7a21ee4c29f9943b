#include "refreshing_view.h"

#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/toolbar_reader.h"

namespace tx::host::gui {
namespace {

constexpr tx_element_view_interface_0 kViewTable{
    &host::root_slot,
    [](void* self, std::uint32_t what) noexcept {
      host::object_of<refreshing_view>(self).changed(what);
    },
};
constexpr host::interface_entry kViewInterfaces[]{{TX_ELEMENT_VIEW_INTERFACE_0, &kViewTable}};

}  // namespace

tx_custom_pointer refreshing_view::pair() noexcept { return {&kViewTable, object_half()}; }

std::span<const host::interface_entry> refreshing_view::interfaces() const noexcept {
  return kViewInterfaces;
}

void view_outline(tx_custom_pointer outline, tx_custom_pointer view) {
  const dialog::outline_reader reader(outline);
  call(outline, &tx_outline_interface_32::set_view, view);
  for (const tx_custom_pointer column : reader.columns()) {
    call(column, &tx_string_outline_column_interface_10::set_view, view);
  }
  call(reader.checks(), &tx_outline_checks_interface_1::set_view, view);
}

void view_toolbar(tx_custom_pointer toolbar, tx_custom_pointer view) {
  call(toolbar, &tx_toolbar_interface_6::set_view, view);
  for (const dialog::tool_entry& t : dialog::tools_of(toolbar)) {
    call(t.tool, &tx_action_tool_interface_0::set_view, view);
  }
}

}  // namespace tx::host::gui
