#include "tx_host/window_logic/access_keys.h"

#include "tx_host/services/letter_case.h"

namespace tx::host::window_logic {
namespace {

constexpr char16_t kMarker = u'&';

bool is_letter(char16_t c) noexcept {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || (c >= 0x0400 && c <= 0x045F);
}

bool is_digit(char16_t c) noexcept { return c >= u'0' && c <= u'9'; }

// Which step of the assignment a caption's character is tried at: 1 the first letter of a word,
// 2 any other letter, 3 a digit; 0 never.
int step_of(std::u16string_view caption, std::size_t i) noexcept {
  const char16_t c = caption[i];
  if (is_digit(c)) return 3;
  if (!is_letter(c)) return 0;
  const bool starts_word = i == 0 || !(is_letter(caption[i - 1]) || is_digit(caption[i - 1]));
  return starts_word ? 1 : 2;
}

}  // namespace

char16_t key_of(char16_t c) noexcept {
  if (is_letter(c)) return static_cast<char16_t>(small_letter(c));
  return is_digit(c) ? c : 0;
}

std::vector<std::vector<assigned_key>> assign_access_keys(
    const std::vector<std::vector<std::u16string>>& classes) {
  std::u16string taken;
  std::vector<std::vector<assigned_key>> keys;
  keys.reserve(classes.size());
  for (const std::vector<std::u16string>& captions : classes) {
    std::vector<assigned_key>& assigned = keys.emplace_back(captions.size());
    for (int step = 1; step <= 3; ++step) {
      for (std::size_t n = 0; n < captions.size(); ++n) {
        if (assigned[n]) continue;
        const std::u16string& caption = captions[n];
        for (std::size_t i = 0; i < caption.size(); ++i) {
          if (step_of(caption, i) != step) continue;
          const char16_t key = key_of(caption[i]);
          if (taken.find(key) != std::u16string::npos) continue;
          taken.push_back(key);
          assigned[n] = access_key{i, key};
          break;
        }
      }
    }
  }
  return keys;
}

std::u16string with_marker(std::u16string_view caption, const assigned_key& key) {
  std::size_t at = caption.size();
  if (key) {
    if (key->position < caption.size() && key_of(caption[key->position]) == key->letter) {
      at = key->position;
    } else {
      for (std::size_t i = 0; i < caption.size() && at == caption.size(); ++i) {
        if (key_of(caption[i]) == key->letter) at = i;
      }
    }
  }
  std::u16string shown;
  shown.reserve(caption.size() + 2);
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (i == at || caption[i] == kMarker) shown.push_back(kMarker);
    shown.push_back(caption[i]);
  }
  return shown;
}

std::u16string without_marker(std::u16string_view text) {
  std::u16string caption;
  caption.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    // A marker stands before the character it marks, or before a second one that is a '&'
    // itself; a last lone one is shown as it is.
    if (text[i] == kMarker && i + 1 < text.size()) ++i;
    caption.push_back(text[i]);
  }
  return caption;
}

std::u16string with_key_hint(std::u16string_view hint, char16_t letter) {
  std::u16string tip(hint);
  tip += u" (Alt+";
  // The key as a person reads it on the keyboard: a letter's capital.
  tip.push_back(static_cast<char16_t>(capital_letter(letter)));
  tip += u")";
  return tip;
}

std::u16string without_key_hint(std::u16string_view tip, char16_t letter) {
  const std::u16string words = with_key_hint(u"", letter);
  if (tip.size() >= words.size() && tip.substr(tip.size() - words.size()) == words) {
    tip.remove_suffix(words.size());
  }
  return std::u16string(tip);
}

}  // namespace tx::host::window_logic
