// Access keys: one free letter a caption, first letters of words before the others and digits
// last, Russian and English alike and without case; earlier classes and captions win; the keys of
// a class stay when a later class changes; a caption's own '&' shows as one.
#include "tx_host/window_logic/access_keys.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tx_host/services/utf.h"

namespace tx::test {
namespace {

using namespace host::window_logic;
using host::to_utf16;
using host::to_utf8;

using captions = std::vector<std::vector<std::string>>;

// Each class's captions as the controls show them, the key marked with '&' ("&Apply Cl&ose").
std::vector<std::string> marked(const captions& classes) {
  std::vector<std::vector<std::u16string>> wide;
  for (const std::vector<std::string>& c : classes) {
    std::vector<std::u16string>& texts = wide.emplace_back();
    for (const std::string& caption : c) texts.push_back(to_utf16(caption));
  }
  const std::vector<std::vector<assigned_key>> keys = assign_access_keys(wide);
  std::vector<std::string> shown;
  for (std::size_t k = 0; k < wide.size(); ++k) {
    std::string line;
    for (std::size_t n = 0; n < wide[k].size(); ++n) {
      if (n > 0) line += ' ';
      line += to_utf8(with_marker(wide[k][n], keys[k][n]));
    }
    shown.push_back(line);
  }
  return shown;
}

TEST(AccessKeys, EachCaptionGetsAFreeLetterFirstLettersOfWordsFirst) {
  struct key_case {
    const char* name;
    captions classes;
    std::vector<std::string> expected;
  };
  const key_case cases[] = {
      {"first letters", {{"Apply", "Close"}}, {"&Apply &Close"}},
      {"next word's first letter", {{"Close", "Clear Selection"}}, {"&Close Clear &Selection"}},
      {"inner letter when no word is free", {{"Redo", "Repeat"}}, {"&Redo R&epeat"}},
      {"a later caption's first letter before an earlier one's inner letter",
       {{"Обратить", "Отменить", "Тип"}},
       {"&Обратить От&менить &Тип"}},
      {"matched without case", {{"Ёлка", "ёж", "select", "Save"}}, {"&Ёлка ё&ж &select S&ave"}},
      {"Cyrillic and Latin letters that look alike differ",
       {{"Свернуть", "Close"}},
       {"&Свернуть &Close"}},
      {"digits last", {{"a1", "a2", "1x"}}, {"&a1 a&2 1&x"}},
      {"no free letter: no key", {{"ab", "ba", "a", "b"}}, {"&ab &ba a b"}},
      {"signs are never keys", {{"N =", "— …", ""}}, {"&N = — … "}},
      {"an earlier class first", {{"Type"}, {"Text", "Tab"}}, {"&Type", "T&ext T&ab"}},
      {"a caption's own ampersand shows as one", {{"R&D", "& Co", "&&"}}, {"&R&&D && &Co &&&&"}},
  };
  for (const key_case& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(marked(c.classes), c.expected);
  }
}

TEST(AccessKeys, MoreCaptionsThanKeysLeaveTheRestWithout) {
  // 26 letters and 10 digits of "abc…z0…9" for 40 captions that each hold all of them.
  const std::u16string all = u"abcdefghijklmnopqrstuvwxyz0123456789";
  const std::vector<std::vector<std::u16string>> classes{std::vector<std::u16string>(40, all)};
  const std::vector<assigned_key> keys = assign_access_keys(classes).front();
  std::u16string used;
  for (std::size_t n = 0; n < keys.size(); ++n) {
    if (n < all.size()) {
      ASSERT_TRUE(keys[n]) << n;
      EXPECT_EQ(used.find(keys[n]->letter), std::u16string::npos) << n;
      used.push_back(keys[n]->letter);
    } else {
      EXPECT_FALSE(keys[n]) << n;
    }
  }
}

TEST(AccessKeys, AClassKeepsItsKeysWhenALaterClassChanges) {
  // The dialog's buttons, tools and operation selector, then each operation's panel.
  const std::vector<std::u16string> stable{
      u"Применить",          u"Закрыть",      u"Развернуть",
      u"Свернуть",           u"Выделить все", u"Снять выделение",
      u"Обратить выделение", u"Отменить",     u"Повторить",
      u"Выполнить",          u"Тип:"};
  const std::vector<std::vector<std::u16string>> panels{
      {u"Найти:", u"Заменить на:", u"Учитывать регистр", u"Слово целиком", u"Заменять:"},
      {u"Регистр:"},
      {u"Добавить:"},
      {u"Удалить:", u"N =", u"Регистр", u"Слово целиком"},
      {}};
  const std::vector<assigned_key> alone = assign_access_keys({stable}).front();
  std::u16string stable_letters;
  for (const assigned_key& k : alone) stable_letters.push_back(k ? k->letter : u'-');
  EXPECT_EQ(to_utf8(stable_letters), "пзрсвномиыт");
  for (const std::vector<std::u16string>& panel : panels) {
    const std::vector<std::vector<assigned_key>> keys = assign_access_keys({stable, panel});
    EXPECT_EQ(keys[0], alone);
    for (const assigned_key& k : keys[1]) {
      if (k) {
        EXPECT_EQ(stable_letters.find(k->letter), std::u16string::npos);
      }
    }
  }
}

TEST(AccessKeys, MarkersAndHintsAreReadBackToTheCaption) {
  struct marker_case {
    const char* caption;
    assigned_key key;
    const char* shown;
  };
  const marker_case cases[] = {
      {"Выполнить", access_key{0, u'в'}, "&Выполнить"},
      {"Снять выделение", access_key{1, u'н'}, "С&нять выделение"},
      // A key whose position no longer holds it (the caption changed): its first occurrence.
      {"Ход", access_key{0, u'д'}, "Хо&д"},
      {"Ход", access_key{7, u'х'}, "&Ход"},
      {"Ход", access_key{0, u'ы'}, "Ход"},
      {"A & B", access_key{4, u'b'}, "A && &B"},
      {"A & B", std::nullopt, "A && B"},
  };
  for (const marker_case& c : cases) {
    SCOPED_TRACE(c.caption);
    const std::u16string shown = with_marker(to_utf16(c.caption), c.key);
    EXPECT_EQ(to_utf8(shown), c.shown);
    EXPECT_EQ(to_utf8(without_marker(shown)), c.caption);
  }
  // What a control may hold that the window did not write.
  EXPECT_EQ(to_utf8(without_marker(u"a&")), "a&");
  EXPECT_EQ(to_utf8(without_marker(u"&&&a")), "&a");

  const std::u16string tip = with_key_hint(u"Свернуть", u'с');
  EXPECT_EQ(to_utf8(tip), "Свернуть (Alt+С)");
  EXPECT_EQ(to_utf8(without_key_hint(tip, u'с')), "Свернуть");
  EXPECT_EQ(to_utf8(without_key_hint(tip, u'в')), "Свернуть (Alt+С)");
  EXPECT_EQ(to_utf8(without_key_hint(with_key_hint(u"Undo", u'u'), u'u')), "Undo");
}

}  // namespace
}  // namespace tx::test
