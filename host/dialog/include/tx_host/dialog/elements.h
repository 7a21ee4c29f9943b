// The host's reading of the element tree a plug-in describes: what an element is (asked through
// its root, by interface name), and its texts (through string visitors). The tree of elements is
// element_tree.h's. Everything here goes through the SDK's interfaces alone.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tx/abi.h"
#include "tx_host/services/interface_object.h"
#include "tx_host/services/string_collector.h"
#include "tx_host/services/utf.h"

namespace tx::host::dialog {

enum class element_kind {
  docker,
  grid,
  groupbox,
  stack,
  label,
  checkbox,
  dropdown,
  integer_input,
  assisted_input,
  outline,
  toolbar,
  bitmap,
  unknown,
};

// An element as the host knows it: its kind and its pair for that kind's interface.
struct element {
  element_kind kind = element_kind::unknown;
  tx_custom_pointer pair{};
};

// Asks `any` through its root which element interface it answers. A pair that answers none
// (or is absent) is unknown, kept as given.
element identify(tx_custom_pointer any) noexcept;

// Inputs the user sets: check boxes, drop-downs, integer and text inputs.
constexpr bool is_field(element_kind kind) noexcept {
  return kind == element_kind::checkbox || kind == element_kind::dropdown ||
         kind == element_kind::integer_input || kind == element_kind::assisted_input;
}

// Whether the element is shown (elements without a visible flag always are), and whether the
// user may change it (for fields; other elements always may).
bool element_visible(const element& e) noexcept;
bool element_enabled(const element& e) noexcept;

// The text a plug-in hands to a string visitor when `ask(visitor)` is called, in UTF-8; nothing
// when `ask` answers false.
template <class Ask>
std::optional<std::string> collect_text(Ask&& ask) {
  string_collector collector;
  if (!std::forward<Ask>(ask)(collector.pair())) return std::nullopt;
  return to_utf8(collector.text());
}

// A field's caption (a check box's text beside the box); nothing when it has none.
std::optional<std::string> field_caption(const element& e);

// The pairs handed to a tx_element_visitor_interface_0, in order.
class element_collector final : public interface_object {
 public:
  element_collector() = default;
  tx_custom_pointer pair() noexcept;
  void visit(tx_custom_pointer element) {
    if (present(element)) elements_.push_back(element);
  }
  const std::vector<tx_custom_pointer>& elements() const noexcept { return elements_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
  std::vector<tx_custom_pointer> elements_;
};

}  // namespace tx::host::dialog
