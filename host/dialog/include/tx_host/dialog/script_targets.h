// Finding what a script's command acts on, the same way in both hosts: each host hands over what
// it shows (the fields' captions, a list's items, the tools, the buttons) as plain values, read
// from the elements (text host) or from its native controls (window), and gets back the position
// of the target or the refusal a person would meet.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tx_host/dialog/refusal.h"
#include "tx_host/dialog/script.h"
#include "tx_host/dialog/toolbar_format.h"

namespace tx::host::dialog {

// A target found, or the refusal.
template <class T>
class lookup {
 public:
  lookup(T found) : found_(std::move(found)) {}      // NOLINT: a found target converts
  lookup(refusal why) : refused_(std::move(why)) {}  // NOLINT: so does a refusal
  explicit operator bool() const noexcept { return found_.has_value(); }
  const T& operator*() const noexcept { return *found_; }
  // Only when nothing was found.
  const refusal& refused() const noexcept { return *refused_; }

 private:
  std::optional<T> found_;
  std::optional<refusal> refused_;
};

// A field as a script sees it.
struct field_facts {
  std::string caption;  // as shown; a script may leave out its colon
  bool enabled = true;
};

// The field `name` names, by its number (1 for the first shown) or by its caption, among the
// shown fields in their order; a disabled field is refused.
lookup<std::size_t> find_field(const std::vector<field_facts>& fields, std::string_view name);

// The item of a list that `value` names: by its text, else by its number (1 for the first).
std::optional<std::size_t> find_item(const std::vector<std::string>& items, std::string_view value);

// What `set` gives a field of each kind.
lookup<bool> switch_value(std::string_view value);
lookup<std::int32_t> number_value(std::string_view value);
lookup<std::size_t> item_value(const std::vector<std::string>& items, std::string_view field,
                               std::string_view value);

// The operation selector as a script sees it; nothing when the dialog has none.
struct list_facts {
  std::vector<std::string> items;
  bool enabled = true;
};
lookup<std::size_t> find_operation(const std::optional<list_facts>& selector,
                                   std::string_view operation);

// The tool `name` names among every toolbar's tools: by its id, else by its caption; a hidden
// or disabled tool is refused.
lookup<std::size_t> find_tool(const std::vector<tool_values>& tools, std::string_view name);

// The button an accept, close or press command names among the shown buttons' captions (left to
// right): `press` by caption, else by number; accept and close by the caption's role in the
// dialog's language.
lookup<std::size_t> find_button(const std::vector<std::string>& shown_captions, const command& c,
                                std::int32_t language_offset);

}  // namespace tx::host::dialog
