#include "tx_host/dialog/toolbar_reader.h"

#include "tx/toolkit/toolbar.h"
#include "tx_host/dialog/elements.h"

namespace tx::host::dialog {
namespace {

constexpr tx_tools_visitor_interface_0 kTable{
    &root_slot,
    [](void* self, const char16_t* id, tx_custom_pointer tool) noexcept {
      try {
        return object_of<tool_collector>(self).visit_tool(id, tool);
      } catch (...) {
        return false;  // out of memory: no further tools are taken
      }
    },
    [](void* self) noexcept { object_of<tool_collector>(self).new_group(); },
};
constexpr interface_entry kInterfaces[]{{TX_TOOLS_VISITOR_INTERFACE_0, &kTable}};

}  // namespace

tx_custom_pointer tool_collector::pair() noexcept { return {&kTable, object_half()}; }

bool tool_collector::visit_tool(const char16_t* id, tx_custom_pointer tool) {
  if (present(tool)) tools_.push_back({to_utf8(id != nullptr ? id : u""), tool, group_});
  return true;
}

std::span<const interface_entry> tool_collector::interfaces() const noexcept { return kInterfaces; }

std::vector<tool_entry> tools_of(tx_custom_pointer toolbar) {
  const tx_custom_pointer set = call(toolbar, &tx_toolbar_interface_6::tool_set);
  tool_collector collector;
  call(set, &tx_tool_set_interface_5::visit_tools, collector.pair());
  return collector.tools();
}

std::optional<std::string> tool_caption(tx_custom_pointer tool) {
  return collect_text([tool](tx_custom_pointer visitor) {
    return call(tool, &tx_action_tool_interface_0::caption, visitor);
  });
}

std::optional<std::string> tool_hint(tx_custom_pointer tool) {
  return collect_text([tool](tx_custom_pointer visitor) {
    return call(tool, &tx_action_tool_interface_0::hint, visitor);
  });
}

std::optional<picture_size> tool_image(tx_custom_pointer tool) {
  return collect_picture([tool](tx_custom_pointer visitor) {
    return call(tool, &tx_action_tool_interface_0::image, visitor);
  });
}

tool_values values_of(const tool_entry& t) {
  return {t.id,
          tool_caption(t.tool),
          tool_hint(t.tool),
          tool_image(t.tool),
          tool_enabled(t.tool),
          tool_visible(t.tool),
          t.group};
}

std::vector<tool_values> tool_values_of(tx_custom_pointer toolbar) {
  std::vector<tool_values> values;
  for (const tool_entry& t : tools_of(toolbar)) values.push_back(values_of(t));
  return values;
}

std::string describe_tools(tx_custom_pointer toolbar) {
  return format_tool_listing(tool_values_of(toolbar));
}

bool tool_enabled(tx_custom_pointer tool) noexcept {
  return call(tool, &tx_action_tool_interface_0::enabled);
}

bool tool_visible(tx_custom_pointer tool) noexcept {
  return call(tool, &tx_action_tool_interface_0::visible);
}

}  // namespace tx::host::dialog
