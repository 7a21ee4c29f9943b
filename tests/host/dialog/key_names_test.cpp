// The keys a script presses in the window: chords read from their names, named back the same
// way (the random run reports its inputs by these names), and every kind of wrong name refused
// with what is wrong.
#include "tx_host/dialog/key_names.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tx_host/dialog/script.h"

namespace tx::host::dialog {
namespace {

key_chord chord(named_key key, bool ctrl = false, bool alt = false, bool shift = false) {
  return {key, 0, ctrl, alt, shift};
}
key_chord letter(char32_t c, bool ctrl = false, bool alt = false, bool shift = false) {
  return {named_key::character, c, ctrl, alt, shift};
}

TEST(KeyNames, ReadsChordsAndNamesThemBack) {
  struct row {
    std::string keys;
    std::vector<key_chord> chords;
    std::string names;  // key_name of each chord, joined by blanks
  };
  const row rows[] = {
      {"Tab", {chord(named_key::tab)}, "Tab"},
      {"shift+TAB", {chord(named_key::tab, false, false, true)}, "Shift+Tab"},
      {"  Enter\tEsc  ", {chord(named_key::enter), chord(named_key::escape)}, "Enter Esc"},
      {"Ctrl+a", {letter(U'A', true)}, "Ctrl+A"},
      {"Alt+т Alt+Т", {letter(U'Т', false, true), letter(U'Т', false, true)}, "Alt+Т Alt+Т"},
      {"alt+ё", {letter(U'Ё', false, true)}, "Alt+Ё"},
      {"Alt+я Alt+а", {letter(U'Я', false, true), letter(U'А', false, true)}, "Alt+Я Alt+А"},
      {"Alt+7 5", {letter(U'7', false, true), letter(U'5')}, "Alt+7 5"},
      {"Shift+Alt+Ctrl+Z", {letter(U'Z', true, true, true)}, "Ctrl+Alt+Shift+Z"},
      {"Alt+Down F4 f2 F12",
       {chord(named_key::down, false, true),
        chord(static_cast<named_key>(static_cast<int>(named_key::f1) + 3)),
        chord(static_cast<named_key>(static_cast<int>(named_key::f1) + 1)), chord(named_key::f12)},
       "Alt+Down F4 F2 F12"},
      {"Space Up Down Left Right Home End PgUp PgDn Insert Delete Backspace",
       {chord(named_key::space), chord(named_key::up), chord(named_key::down),
        chord(named_key::left), chord(named_key::right), chord(named_key::home),
        chord(named_key::end), chord(named_key::page_up), chord(named_key::page_down),
        chord(named_key::insert), chord(named_key::del), chord(named_key::backspace)},
       "Space Up Down Left Right Home End PgUp PgDn Insert Delete Backspace"},
  };
  for (const row& r : rows) {
    const parsed_keys parsed = parse_keys(r.keys);
    EXPECT_EQ(parsed.error, "") << r.keys;
    EXPECT_EQ(parsed.chords, r.chords) << r.keys;
    std::string names;
    for (const key_chord& c : parsed.chords)
      names.append(names.empty() ? "" : " ").append(key_name(c));
    EXPECT_EQ(names, r.names) << r.keys;
    // What key_name writes reads back as the same chords.
    EXPECT_EQ(parse_keys(names).chords, r.chords) << names;
  }
}

TEST(KeyNames, RefusesWhatNamesNoChord) {
  struct row {
    std::string keys;
    std::string error;  // the start of the message
  };
  const row rows[] = {
      {"", "no keys given (a key is a letter, a digit, Tab,"},
      {" \t ", "no keys given"},
      {"Tab Ctrl+Foo", "'Ctrl+Foo': no key 'Foo' (a key is a letter"},
      {"AB", "'AB': no key 'AB'"},
      {"Ω", "'Ω': no key 'Ω'"},
      {"F0", "'F0': no key 'F0'"},
      {"F13", "'F13': no key 'F13'"},
      {"F01", "'F01': no key 'F01'"},
      {"Meta+A", "'Meta+A': no modifier 'Meta' (Ctrl, Alt or Shift)"},
      {"Tab+A", "'Tab+A': no modifier 'Tab'"},
      {"Ctrl+ctrl+A", "'Ctrl+ctrl+A': ctrl is given twice"},
      {"Ctrl+", "'Ctrl+': a chord ends with its key"},
      {"+A", "'+A': a '+' without a name before it"},
      {"Alt++", "'Alt++': a '+' without a name before it"},
      {"Shift", "'Shift': Shift is a modifier; a chord ends with its key"},
      {"Ctrl+Т", "'Ctrl+Т': Ctrl takes a Latin letter or a digit"},
  };
  for (const row& r : rows) {
    const parsed_keys parsed = parse_keys(r.keys);
    EXPECT_TRUE(parsed.chords.empty()) << r.keys;
    EXPECT_EQ(parsed.error.substr(0, r.error.size()), r.error) << r.keys;
  }
}

TEST(RandomInputArguments, ReadsTheWholeRangeOfCountAndSeries) {
  const random_input_arguments most = read_random_input({"1000000", "4294967295"});
  EXPECT_EQ(most.error, "");
  EXPECT_EQ(most.count, 1'000'000u);
  EXPECT_EQ(most.series, 4'294'967'295u);
  const random_input_arguments least = read_random_input({"1", "0"});
  EXPECT_EQ(least.error, "");
  EXPECT_EQ(least.count, 1u);
  EXPECT_EQ(least.series, 0u);
  for (const auto& [count, series] : std::vector<std::pair<std::string, std::string>>{
           {"", "1"}, {"+5", "1"}, {"5", ""}, {"5", "0x10"}, {"99999999999", "1"}}) {
    EXPECT_NE(read_random_input({count, series}).error, "") << count << " " << series;
  }
}

}  // namespace
}  // namespace tx::host::dialog
