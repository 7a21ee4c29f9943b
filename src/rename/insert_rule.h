// Insert: a text added before or after the name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tx::rename {

enum class insert_mode : std::int32_t {
  begin = 0,  // text + name
  end = 1,    // name + text
};

struct insert_settings {
  std::u16string_view text{};
  insert_mode mode = insert_mode::begin;  // no selection counts as begin
};

// Rule: begin gives text + name, end gives name + text, exactly as typed (no separator added);
// an empty text or any other mode changes nothing. Example: «roads», «_old» at the end:
// «roads_old».
// `result` is set to the name first and reused; it must not be the name's own storage. Returns
// whether result ≠ name.
bool insert_text(std::u16string_view name, const insert_settings& settings, std::u16string& result);

// Whether the settings change no name: the text is empty.
inline bool is_idle(const insert_settings& settings) noexcept { return settings.text.empty(); }

}  // namespace tx::rename
