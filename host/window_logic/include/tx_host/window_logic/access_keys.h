// Access keys for the dialog's captions: the plug-in's captions carry no mnemonics, so the window
// gives each labelled control, button and tool a letter of its caption that Alt (and that letter)
// reaches, unique in the dialog. Captions are assigned in classes, one after the other: a class's
// keys depend only on its own captions and those of the classes before it, so the controls that
// stay while another class changes (the panel of the shown operation) keep their keys.
//
// Within a class every caption first tries the first letters of its words, in order; the captions
// still without a key then try their other letters, then their digits; of two captions that want
// the same letter at the same step, the earlier one gets it. Letters are those of the Latin and
// Cyrillic alphabets, matched without case; a caption none of whose letters and digits is free
// gets no key.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tx::host::window_logic {

struct access_key {
  std::size_t position = 0;  // of the key's character in the caption, in UTF-16 units
  char16_t letter = 0;       // the key, lower case (what key_of answers for the typed character)

  friend bool operator==(const access_key&, const access_key&) = default;
};

// One caption's key, or none.
using assigned_key = std::optional<access_key>;

// The keys of `classes` (each a list of captions, in the order of priority), one list a class,
// one entry a caption.
std::vector<std::vector<assigned_key>> assign_access_keys(
    const std::vector<std::vector<std::u16string>>& classes);

// The key that typed character `c` stands for: a letter's lower case, a digit itself; 0 for a
// character that is no key.
char16_t key_of(char16_t c) noexcept;

// The caption as a control shows it with Windows' mnemonic marker: every '&' of the caption
// doubled (so that it shows as one) and a '&' before the key's character. The key is looked for
// at its position, else at the first character that is that key; without it, only the doubling.
std::u16string with_marker(std::u16string_view caption, const assigned_key& key);
// The caption back from a control's text: the marker dropped, '&&' read as one '&'.
std::u16string without_marker(std::u16string_view text);

// A tooltip that also tells a tool's key, "Свернуть (Alt+С)", and the tooltip's text back without
// it (unchanged when it does not end in that key's words).
std::u16string with_key_hint(std::u16string_view hint, char16_t letter);
std::u16string without_key_hint(std::u16string_view tip, char16_t letter);

}  // namespace tx::host::window_logic
