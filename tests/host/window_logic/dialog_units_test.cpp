// Dialog units to pixels, rounded as Windows' MulDiv rounds; in the Windows build every case is
// also put to MulDiv itself.
#include "tx_host/window_logic/dialog_units.h"

#include <gtest/gtest.h>

#include <climits>

#ifdef _WIN32
#include <windows.h>
#endif

namespace tx::test {
namespace {

using host::window_logic::dialog_units_x;
using host::window_logic::dialog_units_y;
using host::window_logic::mul_div;

TEST(DialogUnits, MulDivRoundsHalvesAwayFromZero) {
  struct mul_div_case {
    int a, b, c;
    int expected;
  };
  const mul_div_case cases[] = {
      {7, 8, 4, 14},
      {1, 1, 2, 1},
      {3, 1, 2, 2},
      {1, 1, 3, 0},
      {2, 1, 3, 1},
      {-1, 1, 2, -1},
      {-3, 1, 2, -2},
      {1, -1, 2, -1},
      {-1, -1, 2, 1},
      {1, 1, -2, -1},
      {-5, 3, -4, 4},
      {5, 7, 0, -1},
      {0, 9, 5, 0},
      {INT_MAX, INT_MAX, INT_MAX, INT_MAX},
      {INT_MAX, 2, 1, -1},
      {INT_MAX, 3, 4, 1610612735},
      {100000, 100000, 7, 1428571429},
  };
  for (const mul_div_case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.a << " * " << c.b << " / " << c.c);
    EXPECT_EQ(mul_div(c.a, c.b, c.c), c.expected);
#ifdef _WIN32
    EXPECT_EQ(MulDiv(c.a, c.b, c.c), c.expected);
#endif
  }
}

TEST(DialogUnits, AcrossAreQuartersDownAreEighthsOfTheFont) {
  struct unit_case {
    int units;
    int base;
    int across;
    int down;
  };
  const unit_case cases[] = {
      {4, 8, 8, 4},        {320, 6, 480, 240}, {1, 6, 2, 1},    {3, 7, 5, 3},
      {190, 13, 618, 309}, {0, 9, 0, 0},       {-4, 6, -6, -3},
  };
  for (const unit_case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.units << " units of base " << c.base);
    EXPECT_EQ(dialog_units_x(c.units, c.base), c.across);
    EXPECT_EQ(dialog_units_y(c.units, c.base), c.down);
  }
}

}  // namespace
}  // namespace tx::test
