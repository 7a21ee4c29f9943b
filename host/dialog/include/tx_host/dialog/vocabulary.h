// The host's own words in the dialog it renders, in its interface language, and the host's
// shared button captions by which it knows a dialog's accepting and closing buttons.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tx::host::dialog {

struct vocabulary {
  std::string_view tools;     // before a toolbar's tools
  std::string_view history;   // before a text input's earlier entries
  std::string_view none;      // an empty history, a drop-down without a selection
  std::string_view disabled;  // after a field the user cannot change
  std::string_view warning;   // before the text of a warning box
};

// The words for a language offset (0 Russian, 50000 English; any other: Russian).
const vocabulary& vocabulary_for(std::int32_t language_offset) noexcept;

// The text of the host's shared string `id` (99 to 104) in the language; empty for another id.
std::string_view host_string(std::int32_t id, std::int32_t language_offset) noexcept;

enum class button_role { other, accept, close };

// What a button captioned `caption` does by the host's convention: "OK" and "Apply" accept,
// "Cancel" and "Close" close (the host's strings 99, 101 and 100, 102).
button_role role_of(std::string_view caption, std::int32_t language_offset) noexcept;

}  // namespace tx::host::dialog
