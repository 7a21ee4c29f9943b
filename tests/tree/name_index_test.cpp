// The name store's index and text: positions found, erased and placed again however the slots
// collide, and text handles that stay valid while more text is added.
#include "tree/name_index.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tx {
namespace {

TEST(NameIndex, FindsEveryPositionAfterGrowingAndAfterErasingAnyOfThem) {
  constexpr std::uint32_t n = 3000;
  std::vector<prjrename_name> entries;
  prjrename_name_index index;
  for (std::uint32_t i = 0; i < n; ++i) {
    // Grown one entry at a time, as the store does: several rounds of placing everything again.
    index.reserve(entries.size() + 1);
    entries.push_back({tx_uuid{0x1000 + i * 7919ull}, {}, {}, 0});
    index.insert_last(entries);
  }
  // Erase every third entry, spread over the table, so that runs of slots shift back and wrap.
  std::vector<bool> erased(n);
  for (std::uint32_t i = 0; i < n; i += 3) {
    index.erase(i, entries);
    erased[i] = true;
  }
  for (std::uint32_t i = 0; i < n; ++i) {
    EXPECT_EQ(index.find(entries[i].uuid, entries), erased[i] ? prjrename_name_index::absent : i)
        << i;
  }
  EXPECT_EQ(index.find(tx_uuid{1}, entries), prjrename_name_index::absent);
  index.rebuild(entries);
  EXPECT_EQ(index.find(entries[0].uuid, entries), 0u);
}

// Uuids whose home slot in the smallest table (16 slots) is `slot`.
std::vector<tx_uuid> homed_at(std::size_t slot, std::size_t count) {
  std::vector<tx_uuid> found;
  for (std::uint64_t value = 1; found.size() < count; ++value) {
    if ((tx_uuid_hash(tx_uuid{value}) & 15) == slot) found.push_back(tx_uuid{value});
  }
  return found;
}

TEST(NameIndex, ErasingShiftsBackAcrossTheEndOfTheTable) {
  // A and C belong in the last slot, B in the first: A takes slot 15, B slot 0, C slot 1.
  // Erasing A leaves B where it is (at its home) and moves C back to slot 15.
  const std::vector<tx_uuid> last = homed_at(15, 2), first = homed_at(0, 1);
  const std::vector<prjrename_name> entries{
      {last[0], {}, {}, 0}, {first[0], {}, {}, 0}, {last[1], {}, {}, 0}};
  prjrename_name_index index;
  index.reserve(entries.size());
  index.rebuild(entries);
  index.erase(0, entries);
  EXPECT_EQ(index.find(last[0], entries), prjrename_name_index::absent);
  EXPECT_EQ(index.find(first[0], entries), 1u);
  EXPECT_EQ(index.find(last[1], entries), 2u);
}

TEST(TextArena, HandlesKeepTheirTextAsChunksFillAndForLongNames) {
  prjrename_text_arena arena;
  std::vector<std::pair<prjrename_text, std::u16string>> held;
  for (int i = 0; i < 5000; ++i) {  // ~100k code units: several chunks
    std::u16string text(static_cast<std::size_t>(i % 37), static_cast<char16_t>(u'a' + i % 26));
    held.emplace_back(arena.add(text), text);
  }
  const std::u16string longest(70000, u'ж');  // longer than a chunk
  held.emplace_back(arena.add(longest), longest);
  held.emplace_back(arena.add(u"after"), u"after");
  for (const auto& [handle, text] : held) {
    ASSERT_EQ(handle.view(), text);
    EXPECT_EQ(handle.c_str()[text.size()], u'\0');
  }
  EXPECT_TRUE(prjrename_text().empty());
  EXPECT_EQ(prjrename_text().c_str()[0], u'\0');
}

}  // namespace
}  // namespace tx
