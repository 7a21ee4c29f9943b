// Every transformation on hostile UTF-16 (lone surrogates, embedded NULs, a 1 MB name, names of
// separators only, empty) in every mode keeps its contract: the result is the name whenever the
// return is false, and each kind's shape holds (case keeps the length, erase keeps a piece of
// the name, insert adds exactly its text). Run natively under the sanitizers as well.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin_separators.h"
#include "rename/case_change_rule.h"
#include "rename/erase_rule.h"
#include "rename/find_replace_rule.h"
#include "rename/insert_rule.h"

namespace tx::rename {
namespace {

using namespace std::string_literals;

std::vector<std::u16string> hostile_names() {
  std::u16string large;
  large.reserve(1 << 20);
  const std::u16string pieces[] = {u"Road", u"aa",     u"\"", u"Дорога", u".tab",
                                   u"\0"s,  u"\xD800", u"_",  u"\xDC00", u"road "};
  for (std::size_t i = 0; large.size() < (1u << 20); ++i) {
    large += pieces[(i * 7 + i / 3) % std::size(pieces)];
  }
  return {
      u"",
      std::u16string{0xD800},
      std::u16string{0xDFFF, u'a', 0xD83D},
      std::u16string{0xD83D, 0xDE00, 0xD801, 0xDC00, u'x'},  // pairs, one with a case partner
      u"\0\0road\0"s,
      std::u16string(testing::separator_string()) + u"\"",
      u"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaab",
      std::u16string(1 << 20, u'a'),
      large,
  };
}

// Searched, inserted and erased texts; the long one is searched with the table, off the stack.
const std::u16string hostile_texts[] = {
    u"road", u"a", u"aa", u"\0"s, u"\xDC00", u"\"", std::u16string(70, u'a') + u"b", u""};

// The contract shared by every transformation: true exactly when the result differs. Reports
// sizes only: the names may be a megabyte long.
::testing::AssertionResult keeps_contract(bool changed, const std::u16string& name,
                                          const std::u16string& result) {
  if (changed == (result != name)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "returned " << changed << " for a name of " << name.size()
                                       << " units and a result of " << result.size();
}

// Erase settings covering every kind: each count and side for N characters, each text and
// flag for everything to and after, and the kinds that need nothing more.
std::vector<erase_settings> every_erase() {
  std::vector<erase_settings> every;
  for (const int count : {-2147483647 - 1, 0, 1, 5, 2147483647}) {
    for (const int side : {0, 1, 7}) {
      every.push_back({erase_kind::n_chars, count, static_cast<erase_side>(side)});
    }
  }
  for (const erase_kind kind : {erase_kind::everything_to, erase_kind::everything_after}) {
    for (const std::u16string& characters : hostile_texts) {
      for (const int flags : {0, 1, 2, 3}) {
        every.push_back(
            {kind, 0, erase_side::begin, characters, (flags & 1) != 0, (flags & 2) != 0});
      }
    }
  }
  for (const int kind : {-1, 3, 4, 5}) {
    every.push_back({static_cast<erase_kind>(kind), 5, erase_side::end, u"a"});
  }
  return every;
}

TEST(HostileInput, EveryTransformationKeepsItsContractAndShape) {
  const separator_set& separators = testing::plugin_separators();
  const std::vector<erase_settings> erasures = every_erase();
  std::u16string result;
  for (const std::u16string& name : hostile_names()) {
    for (const int mode : {-1, 0, 1, 2, 3, 4}) {  // a case change keeps the length
      const bool changed = change_case(name, static_cast<case_mode>(mode), separators, result);
      ASSERT_TRUE(keeps_contract(changed, name, result));
      ASSERT_EQ(result.size(), name.size());
    }
    for (const std::u16string& text : hostile_texts) {
      for (const int mode : {-1, 0, 1, 2}) {  // an insertion adds exactly its text at one end
        const bool changed = insert_text(name, {text, static_cast<insert_mode>(mode)}, result);
        ASSERT_TRUE(keeps_contract(changed, name, result));
        ASSERT_TRUE(!changed || result == text + name || result == name + text);
      }
      for (const int mode : {-1, 0, 1, 2, 3, 4, 5}) {
        for (const int flags : {0, 1, 2, 3}) {
          const find_replace_settings settings{text, u"\xD800x", (flags & 1) != 0, (flags & 2) != 0,
                                               static_cast<replace_mode>(mode)};
          const bool changed = find_replace(name, settings, separators, result);
          ASSERT_TRUE(keeps_contract(changed, name, result));
          ASSERT_FALSE(changed && (text.empty() || mode < 0 || mode > 4));  // idle settings
        }
      }
    }
    for (const erase_settings& settings : erasures) {  // an erasure keeps a piece of the name
      const bool changed = erase(name, settings, separators, result);
      ASSERT_TRUE(keeps_contract(changed, name, result));
      ASSERT_TRUE(name.starts_with(result) || name.ends_with(result));
    }
  }
}

}  // namespace
}  // namespace tx::rename
