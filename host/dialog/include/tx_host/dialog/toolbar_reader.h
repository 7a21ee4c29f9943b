// The host's reading of a toolbar: the tools its tool set offers, group by group, through a
// host tools visitor that takes every tool.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tx/abi.h"
#include "tx_host/dialog/picture_reader.h"
#include "tx_host/dialog/toolbar_format.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::dialog {

struct tool_entry {
  std::string id;            // UTF-8
  tx_custom_pointer tool{};  // tx_action_tool_interface_0, valid while the tool set lives
  int group = 0;             // 0 for the first group
};

// A tx_tools_visitor_interface_0 that takes every tool offered.
class tool_collector final : public interface_object {
 public:
  tool_collector() = default;
  tx_custom_pointer pair() noexcept;
  bool visit_tool(const char16_t* id, tx_custom_pointer tool);
  void new_group() noexcept { ++group_; }
  const std::vector<tool_entry>& tools() const noexcept { return tools_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
  std::vector<tool_entry> tools_;
  int group_ = 0;
};

// The tools of `toolbar` (a tx_toolbar_interface_6 pair), in toolbar order.
std::vector<tool_entry> tools_of(tx_custom_pointer toolbar);

// What the text host shows of each tool of `toolbar`, in toolbar order.
// What one tool shows, read from it.
tool_values values_of(const tool_entry& tool);
std::vector<tool_values> tool_values_of(tx_custom_pointer toolbar);

// One line a tool, in toolbar order: "ID: «CAPTION», image 16×16" or "…, no image", with
// ", disabled" and ", hidden" added when so.
std::string describe_tools(tx_custom_pointer toolbar);

std::optional<std::string> tool_caption(tx_custom_pointer tool);
std::optional<std::string> tool_hint(tx_custom_pointer tool);
// The size of the tool's picture; nothing when it has none.
std::optional<picture_size> tool_image(tx_custom_pointer tool);
bool tool_enabled(tx_custom_pointer tool) noexcept;
bool tool_visible(tx_custom_pointer tool) noexcept;

}  // namespace tx::host::dialog
