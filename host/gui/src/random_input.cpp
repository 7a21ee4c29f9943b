#include "random_input.h"

#include <algorithm>
#include <array>
#include <random>

#include "dialog_window.h"
#include "input_delivery.h"
#include "key_input.h"

namespace tx::host::gui {
namespace {

using dialog::key_chord;
using dialog::named_key;

// What one draw gives: a fixed chord, a letter or a digit (with or without Alt), or a click.
enum class draw_kind { chord, letter, alt_letter, digit, click };

struct weighted {
  draw_kind kind;
  int weight;
  key_chord chord{};
};

constexpr key_chord key(named_key k, bool ctrl = false, bool alt = false, bool shift = false) {
  return {k, 0, ctrl, alt, shift};
}
constexpr key_chord ctrl_letter(char32_t c) { return {named_key::character, c, true}; }

// Moving within a control (the arrows) is the most common, then moving between controls and what
// acts (Space, Enter, F2, clicks); Esc, which closes the dialog from almost anywhere, is rare, and
// Tab is not so common that the focus keeps landing on the buttons, so that a run lasts.
constexpr std::array<weighted, 24> kAlphabet{{
    {draw_kind::chord, 12, key(named_key::tab)},
    {draw_kind::chord, 6, key(named_key::tab, false, false, true)},
    {draw_kind::chord, 12, key(named_key::up)},
    {draw_kind::chord, 16, key(named_key::down)},
    {draw_kind::chord, 6, key(named_key::left)},
    {draw_kind::chord, 6, key(named_key::right)},
    {draw_kind::chord, 2, key(named_key::home)},
    {draw_kind::chord, 2, key(named_key::end)},
    {draw_kind::chord, 2, key(named_key::page_up)},
    {draw_kind::chord, 2, key(named_key::page_down)},
    {draw_kind::chord, 12, key(named_key::space)},
    {draw_kind::chord, 6, key(named_key::enter)},
    {draw_kind::chord, 1, key(named_key::escape)},
    {draw_kind::chord, 6, key(dialog::function_key(2))},
    {draw_kind::chord, 4, key(dialog::function_key(4))},
    {draw_kind::chord, 4, key(named_key::down, false, true)},
    {draw_kind::chord, 4, ctrl_letter(U'A')},
    {draw_kind::chord, 4, ctrl_letter(U'Z')},
    {draw_kind::chord, 4, key(named_key::del)},
    {draw_kind::chord, 4, key(named_key::backspace)},
    {draw_kind::letter, 12},
    {draw_kind::alt_letter, 8},
    {draw_kind::digit, 4},
    {draw_kind::click, 20},
}};

constexpr int total_weight() {
  int total = 0;
  for (const weighted& w : kAlphabet) total += w.weight;
  return total;
}

// The letters a draw picks from: the Latin and the Russian alphabets' capitals.
constexpr std::u32string_view kLetters =
    U"ABCDEFGHIJKLMNOPQRSTUVWXYZАБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ";

// One draw of the standard Mersenne Twister, whose numbers for a series are the same in every
// library, reduced by remainder (not by a standard distribution, which each library may compute
// differently).
class draws {
 public:
  explicit draws(std::uint32_t series) : engine_(series) {}
  std::uint32_t below(std::uint32_t bound) { return engine_() % bound; }

 private:
  std::mt19937 engine_;
};

struct input {
  std::vector<INPUT> events;
  std::string name;
};

input draw(draws& d, HWND dialog) {
  int pick = static_cast<int>(d.below(total_weight()));
  const weighted* chosen = &kAlphabet.front();
  for (const weighted& w : kAlphabet) {
    chosen = &w;
    if (pick < w.weight) break;
    pick -= w.weight;
  }
  key_chord chord = chosen->chord;
  switch (chosen->kind) {
    case draw_kind::chord:
      break;
    case draw_kind::letter:
    case draw_kind::alt_letter:
      chord = {named_key::character, kLetters[d.below(static_cast<std::uint32_t>(kLetters.size()))],
               false, chosen->kind == draw_kind::alt_letter};
      break;
    case draw_kind::digit:
      chord = {named_key::character, static_cast<char32_t>(U'0' + d.below(10))};
      break;
    case draw_kind::click: {
      RECT client{};
      GetClientRect(dialog, &client);
      POINT at{static_cast<LONG>(d.below(static_cast<std::uint32_t>(std::max(client.right, 1L)))),
               static_cast<LONG>(d.below(static_cast<std::uint32_t>(std::max(client.bottom, 1L))))};
      std::string name =
          std::string("a click at ") + std::to_string(at.x) + "," + std::to_string(at.y);
      ClientToScreen(dialog, &at);
      return {click_events(at), std::move(name)};
    }
  }
  return {chord_events(chord), dialog::key_name(chord)};
}

}  // namespace

dialog::command_outcome random_input(dialog_window& window, input_delivery& delivery,
                                     std::uint32_t count, std::uint32_t series) {
  draws d(series);
  for (std::uint32_t number = 1; number <= count; ++number) {
    input next = draw(d, window.handle());
    if (const std::optional<std::string> error =
            delivery.deliver(std::move(next.events), number, next.name)) {
      return dialog::failure(*error);
    }
    if (window.closed_with()) {
      return {std::nullopt,
              std::string("random-input: the dialog closed at input ") + std::to_string(number) +
                  " of " + std::to_string(count) + " (" + next.name + ")\n",
              {}};
    }
  }
  return {
      std::nullopt,
      std::string("random-input: ") + std::to_string(count) + " inputs, the dialog still open\n",
      {}};
}

}  // namespace tx::host::gui
