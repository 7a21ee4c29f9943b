// The line that ends a listing cut short: how many more, with its digits in groups of three.
#include "tx_host/txhost/listing_limit.h"

#include <gtest/gtest.h>

#include <string>

namespace tx::host {
namespace {

TEST(ListingLimit, TheMoreLineGroupsTheCountInThousands) {
  struct row {
    std::size_t hidden;
    std::string count;
  };
  const row rows[] = {
      {1, "1"},
      {999, "999"},
      {1000, "1,000"},
      {1234, "1,234"},
      {100000, "100,000"},
      {1009603, "1,009,603"},
      {18446744073709551615ull, "18,446,744,073,709,551,615"},
  };
  for (const row& r : rows) {
    EXPECT_EQ(more_line("  ", r.hidden, "names"),
              "  … and " + r.count + " more names (--all lists them all)\n");
  }
  EXPECT_EQ(more_line("", 55, "elements"), "… and 55 more elements (--all lists them all)\n");
}

}  // namespace
}  // namespace tx::host
