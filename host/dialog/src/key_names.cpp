#include "tx_host/dialog/key_names.h"

#include <array>
#include <optional>

#include "tx_host/services/letter_case.h"
#include "tx_host/services/utf.h"

namespace tx::host::dialog {
namespace {

struct key_entry {
  named_key key;
  std::string_view name;
};

constexpr std::array<key_entry, 15> kNamedKeys{{
    {named_key::tab, "Tab"},
    {named_key::enter, "Enter"},
    {named_key::escape, "Esc"},
    {named_key::space, "Space"},
    {named_key::up, "Up"},
    {named_key::down, "Down"},
    {named_key::left, "Left"},
    {named_key::right, "Right"},
    {named_key::home, "Home"},
    {named_key::end, "End"},
    {named_key::page_up, "PgUp"},
    {named_key::page_down, "PgDn"},
    {named_key::insert, "Insert"},
    {named_key::del, "Delete"},
    {named_key::backspace, "Backspace"},
}};

constexpr std::string_view kWhatAKeyIs =
    "a key is a letter, a digit, Tab, Enter, Esc, Space, Up, Down, Left, Right, Home, End, PgUp, "
    "PgDn, Insert, Delete, Backspace or F1 to F12";

char lower_ascii(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool same_name(std::string_view a, std::string_view b) noexcept {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (lower_ascii(a[i]) != lower_ascii(b[i])) return false;
  }
  return true;
}

enum class modifier { ctrl, alt, shift };

std::optional<modifier> modifier_named(std::string_view name) noexcept {
  if (same_name(name, "Ctrl")) return modifier::ctrl;
  if (same_name(name, "Alt")) return modifier::alt;
  if (same_name(name, "Shift")) return modifier::shift;
  return std::nullopt;
}

// F1 to F12.
std::optional<named_key> function_key_named(std::string_view name) noexcept {
  if (name.size() < 2 || name.size() > 3 || lower_ascii(name[0]) != 'f') return std::nullopt;
  int number = 0;
  for (const char c : name.substr(1)) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + (c - '0');
  }
  if (number < 1 || number > 12 || name[1] == '0') return std::nullopt;
  return dialog::function_key(number);
}

// The key `name` names into `chord`; false when it names none.
bool read_key(std::string_view name, key_chord& chord) {
  for (const key_entry& e : kNamedKeys) {
    if (same_name(name, e.name)) {
      chord.key = e.key;
      return true;
    }
  }
  if (const std::optional<named_key> f = function_key_named(name)) {
    chord.key = *f;
    return true;
  }
  // One character, a letter or a digit (every letter a chord takes is one UTF-16 unit).
  const std::u16string unit = to_utf16(name);
  if (unit.size() != 1 || to_utf8(unit) != name) return false;
  const char32_t c = unit.front();
  if (!(c >= U'0' && c <= U'9') && !is_latin_letter(c) && !is_cyrillic_letter(c)) return false;
  chord.key = named_key::character;
  chord.character = capital_letter(c);
  return true;
}

std::string quoted_chord(std::string_view chord) {
  std::string quoted(1, '\'');
  quoted.append(chord).push_back('\'');
  return quoted;
}

// One chord, or what is wrong with it.
std::optional<std::string> read_chord(std::string_view text, key_chord& chord) {
  std::vector<std::string_view> parts;
  for (std::size_t from = 0;;) {
    const std::size_t plus = text.find('+', from);
    parts.push_back(text.substr(from, plus == std::string_view::npos ? plus : plus - from));
    if (plus == std::string_view::npos) break;
    from = plus + 1;
  }
  for (std::size_t i = 0; i + 1 < parts.size(); ++i) {
    const std::optional<modifier> m = modifier_named(parts[i]);
    if (!m) {
      if (parts[i].empty()) return quoted_chord(text) + ": a '+' without a name before it";
      return quoted_chord(text) + ": no modifier '" + std::string(parts[i]) +
             "' (Ctrl, Alt or Shift)";
    }
    bool& held = *m == modifier::ctrl ? chord.ctrl : *m == modifier::alt ? chord.alt : chord.shift;
    if (held) return quoted_chord(text) + ": " + std::string(parts[i]) + " is given twice";
    held = true;
  }
  const std::string_view key = parts.back();
  if (key.empty()) return quoted_chord(text) + ": a chord ends with its key";
  if (modifier_named(key)) {
    return quoted_chord(text) + ": " + std::string(key) +
           " is a modifier; a chord ends with its key";
  }
  if (!read_key(key, chord)) {
    return quoted_chord(text) + ": no key '" + std::string(key) + "' (" + std::string(kWhatAKeyIs) +
           ")";
  }
  if (chord.ctrl && chord.key == named_key::character && is_cyrillic_letter(chord.character)) {
    return quoted_chord(text) + ": Ctrl takes a Latin letter or a digit";
  }
  return std::nullopt;
}

}  // namespace

bool is_latin_letter(char32_t c) noexcept {
  return (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
}

bool is_cyrillic_letter(char32_t c) noexcept {
  return (c >= U'А' && c <= U'я') || c == U'Ё' || c == U'ё';
}

parsed_keys parse_keys(std::string_view keys) {
  parsed_keys result;
  std::size_t i = 0;
  while (i < keys.size()) {
    if (keys[i] == ' ' || keys[i] == '\t') {
      ++i;
      continue;
    }
    const std::size_t end = keys.find_first_of(" \t", i);
    const std::string_view text = keys.substr(i, end == std::string_view::npos ? end : end - i);
    i += text.size();
    key_chord chord;
    if (std::optional<std::string> error = read_chord(text, chord)) {
      result.chords.clear();
      result.error = std::move(*error);
      return result;
    }
    result.chords.push_back(chord);
  }
  if (result.chords.empty()) result.error.append("no keys given (").append(kWhatAKeyIs).append(")");
  return result;
}

std::string key_name(const key_chord& chord) {
  std::string name;
  if (chord.ctrl) name += "Ctrl+";
  if (chord.alt) name += "Alt+";
  if (chord.shift) name += "Shift+";
  if (chord.key == named_key::character) {
    name += to_utf8(std::u16string(1, static_cast<char16_t>(chord.character)));
  } else if (chord.key >= named_key::f1 && chord.key <= named_key::f12) {
    name.append("F").append(
        std::to_string(static_cast<int>(chord.key) - static_cast<int>(named_key::f1) + 1));
  } else {
    for (const key_entry& e : kNamedKeys) {
      if (e.key == chord.key) name += e.name;
    }
  }
  return name;
}

}  // namespace tx::host::dialog
