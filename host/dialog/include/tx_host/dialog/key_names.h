// The keys a script presses in the window (`keys KEYS`): KEYS is one argument, chords separated
// by blanks, each chord its modifiers and one key joined by '+':
//
//   KEYS     = CHORD { blank CHORD }
//   CHORD    = { MODIFIER "+" } KEY                    e.g. Tab, Shift+Tab, Ctrl+A, Alt+Т
//   MODIFIER = Ctrl | Alt | Shift                       each at most once, in any order
//   KEY      = Tab | Enter | Esc | Space | Up | Down | Left | Right | Home | End | PgUp | PgDn
//            | Insert | Delete | Backspace | F1 … F12
//            | a Latin letter A–Z, a Cyrillic letter А–Я or Ё, a digit 0–9
//
// Names are matched without regard to case (tab, ALT+x); a letter names its key, so `Alt+т` and
// `Alt+Т` are the same chord (Shift+ gives the capital). Ctrl takes a Latin letter or a digit, as
// Ctrl with a Cyrillic letter is the same key as Ctrl with a Latin one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tx::host::dialog {

enum class named_key : std::uint8_t {
  character,  // a letter or a digit: key_chord::character
  tab,
  enter,
  escape,
  space,
  up,
  down,
  left,
  right,
  home,
  end,
  page_up,
  page_down,
  insert,
  del,
  backspace,
  f1,  // f1 … f12 follow in order
  f12 = f1 + 11,
};

// The function key F`n` (1 to 12).
constexpr named_key function_key(int n) noexcept {
  return static_cast<named_key>(static_cast<int>(named_key::f1) + n - 1);
}

struct key_chord {
  named_key key = named_key::character;
  // For named_key::character: the letter in capitals ('A', 'Т', 'Ё') or the digit.
  char32_t character = 0;
  bool ctrl = false;
  bool alt = false;
  bool shift = false;

  bool operator==(const key_chord&) const = default;
};

struct parsed_keys {
  std::vector<key_chord> chords;
  // What is wrong with KEYS; empty when they parsed.
  std::string error;
};

parsed_keys parse_keys(std::string_view keys);

// The chord as a script writes it: modifiers in the order Ctrl, Alt, Shift, then the key
// ("Ctrl+Shift+Tab", "Alt+Т", "F4").
std::string key_name(const key_chord& chord);

// Whether `c` is a letter a chord can name (Latin or Cyrillic, either case).
bool is_latin_letter(char32_t c) noexcept;
bool is_cyrillic_letter(char32_t c) noexcept;

}  // namespace tx::host::dialog
