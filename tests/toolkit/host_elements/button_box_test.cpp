// The button box: buttons built from a bit mask, their captions from the host's basic library,
// and what each press does and answers.
#include "toolkit/button_box.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "host_doubles.h"

namespace tx::test {
namespace {

using toolkit::button_box;
using toolkit::button_record;
using box_ops = tx_button_box_interface_2;

TEST(ButtonBox, ButtonsAreBuiltFromTheMaskInBitOrder) {
  struct mask_case {
    std::uint32_t mask;
    std::vector<button_record> buttons;
  };
  const mask_case cases[] = {
      {10, {{1, -101, 2}, {1, -102, 8}}},
      {26, {{1, -101, 2}, {1, -102, 8}, {1, -103, 16}}},
      {0x65, {{1, -101, 1}, {1, -102, 4}, {1, -99, 32}, {1, -100, 64}}},
      {0x80000080u, {{1, 0, 128}, {1, 0, 0x80000000u}}},
      {0, {}},
  };
  for (const mask_case& c : cases) {
    button_box box(c.mask);
    EXPECT_EQ(box.buttons(), c.buttons) << c.mask;
    EXPECT_EQ(ops<box_ops>(box.pointer()).button_count(box.pointer().object),
              static_cast<std::int32_t>(c.buttons.size()));
  }
}

TEST(ButtonBox, CaptionsAreTheHostLibrarysStrings) {
  button_box box(0x9A);  // 2, 8, 16 and 128, which has no caption
  const tx_custom_pointer p = box.pointer();
  string_sink captions;
  for (std::int32_t i = -1; i <= 4; ++i) {
    EXPECT_EQ(ops<box_ops>(p).caption(p.object, i, captions.pointer()), i >= 0 && i < 3) << i;
    EXPECT_EQ(ops<box_ops>(p).shown(p.object, i), i >= 0 && i < 4) << i;
  }
  EXPECT_EQ(captions.texts, (std::vector<std::u16string>{u"Применить", u"Закрыть", u"Справка"}));
}

enum class answer { none, yes, no, throws };

struct press_case {
  const char* what;
  std::uint32_t mask;
  std::int32_t index;
  answer accept;
  bool help;
  answer generic;
  bool closes;
  int accepts;                          // accept callback calls
  int helps;                            // help callback calls
  std::vector<std::uint32_t> generics;  // bits the generic callback was given
};

TEST(ButtonBox, EachPressFollowsItsButtonsRule) {
  using enum answer;
  const press_case cases[] = {
      {"accept (2) that fails stays open", 10, 0, no, false, yes, false, 1, 0, {}},
      {"accept (1) that succeeds closes", 1, 0, yes, false, none, true, 1, 0, {}},
      {"accept (32) that fails stays open", 32, 0, no, false, none, false, 1, 0, {}},
      {"accept that throws stays open", 10, 0, throws, false, yes, false, 1, 0, {}},
      {"accept without callback goes generic", 10, 0, none, false, yes, true, 0, 0, {2}},
      {"accept (32) without callback goes generic", 32, 0, none, false, no, false, 0, 0, {32}},
      {"accept without any callback stays open", 10, 0, none, false, none, false, 0, 0, {}},
      {"close (4) closes", 4, 0, none, false, none, true, 0, 0, {}},
      {"close (64) closes", 64, 0, no, false, no, true, 0, 0, {}},
      {"help stays open", 26, 2, yes, true, yes, false, 0, 1, {}},
      {"help without callback goes generic", 26, 2, yes, false, yes, true, 0, 0, {16}},
      {"help without any callback stays open", 26, 2, none, false, none, false, 0, 0, {}},
      {"other bit goes generic (close)", 128, 0, yes, true, yes, true, 0, 0, {128}},
      {"other bit goes generic (stay)", 128, 0, yes, true, no, false, 0, 0, {128}},
      {"other bit without generic stays open", 128, 0, yes, true, none, false, 0, 0, {}},
      {"close box closes even when accept fails", 10, -1, no, true, no, true, 0, 0, {}},
      {"close box of an empty box closes", 0, -5, none, false, none, true, 0, 0, {}},
      {"past the last button stays open", 10, 2, yes, true, yes, false, 0, 0, {}},
  };
  for (const press_case& c : cases) {
    button_box box(c.mask);
    int accepts = 0;
    int helps = 0;
    std::vector<std::uint32_t> generics;
    if (c.accept != none) {
      box.set_accept([&accepts, a = c.accept] {
        ++accepts;
        if (a == throws) throw std::runtime_error("accept failed");
        return a == yes;
      });
    }
    if (c.help) box.set_help([&helps] { ++helps; });
    if (c.generic != none) {
      box.set_generic([&generics, g = c.generic](std::uint32_t bit) {
        generics.push_back(bit);
        return g == yes;
      });
    }
    const tx_custom_pointer p = box.pointer();
    EXPECT_EQ(ops<box_ops>(p).press(p.object, c.index), c.closes) << c.what;
    EXPECT_EQ(accepts, c.accepts) << c.what;
    EXPECT_EQ(helps, c.helps) << c.what;
    EXPECT_EQ(generics, c.generics) << c.what;
  }
}

}  // namespace
}  // namespace tx::test
