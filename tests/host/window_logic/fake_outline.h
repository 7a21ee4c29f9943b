// An outline as the plug-in hands it to the host, over a tree written as text: each row a key
// with flags ('+' expanded, '*' selected) and its children in parentheses, e.g. "1+(2* 3) 4".
// Its row pairs are the tree's nodes, so a test can flip a row's flag as the plug-in would.
#pragma once

#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

#include "host_doubles.h"
#include "tx/toolkit/outline.h"
#include "tx_host/window_logic/visible_rows.h"

namespace tx::test {

struct fake_row {
  std::uint64_t key = 0;
  bool expanded = false;
  bool selected = false;
  std::vector<fake_row*> children;
};

class fake_outline {
 public:
  explicit fake_outline(std::string_view tree) {
    std::size_t at = 0;
    top_ = parse(tree, at);
  }
  fake_outline(const fake_outline&) = delete;
  fake_outline& operator=(const fake_outline&) = delete;

  tx_custom_pointer pointer() { return {&table, this}; }
  static tx_custom_pointer pair_of(fake_row* row) { return {&item_table, row}; }

  // The row with `key` (there must be one).
  fake_row& row(std::uint64_t key) {
    for (fake_row& r : rows_) {
      if (r.key == key) return r;
    }
    return rows_.front();
  }
  // Every row answers this many children, each itself (a plug-in gone wrong); 0 for the tree.
  std::int32_t looping_count = 0;

 private:
  std::vector<fake_row*> parse(std::string_view tree, std::size_t& at) {
    std::vector<fake_row*> level;
    while (at < tree.size() && tree[at] != ')') {
      if (tree[at] == ' ') {
        ++at;
        continue;
      }
      fake_row& r = rows_.emplace_back();
      while (at < tree.size() && tree[at] >= '0' && tree[at] <= '9') {
        r.key = r.key * 10 + static_cast<std::uint64_t>(tree[at++] - '0');
      }
      for (; at < tree.size() && (tree[at] == '+' || tree[at] == '*'); ++at) {
        (tree[at] == '+' ? r.expanded : r.selected) = true;
      }
      if (at < tree.size() && tree[at] == '(') {
        r.children = parse(tree, ++at);
        ++at;  // ')'
      }
      level.push_back(&r);
    }
    return level;
  }

  std::deque<fake_row> rows_;  // never moves a row: the pairs point into it
  std::vector<fake_row*> top_;

  static fake_outline& self(void* s) { return *static_cast<fake_outline*>(s); }
  static fake_row* node(tx_custom_pointer row) { return static_cast<fake_row*>(row.object); }
  const std::vector<fake_row*>& children(tx_custom_pointer parent) const {
    return parent.object == nullptr ? top_ : node(parent)->children;
  }

  static constexpr tx_outline_item_interface_0 item_table{
      &no_interfaces, [](void* s) { return static_cast<fake_row*>(s)->key; }};
  static constexpr tx_outline_interface_32 table{
      &no_interfaces,
      [](void*) { return std::uint32_t{0}; },
      [](void* s, tx_custom_pointer parent) {
        if (self(s).looping_count != 0) return self(s).looping_count;
        return static_cast<std::int32_t>(self(s).children(parent).size());
      },
      [](void* s, tx_custom_pointer parent, std::int32_t index) {
        if (self(s).looping_count != 0) return pair_of(&self(s).rows_.front());
        const auto& level = self(s).children(parent);
        if (index < 0 || static_cast<std::size_t>(index) >= level.size())
          return tx_custom_pointer{};
        return pair_of(level[static_cast<std::size_t>(index)]);
      },
      [](void*, tx_custom_pointer row) { return node(row)->selected; },
      [](void*, tx_custom_pointer row, bool on) { node(row)->selected = on; },
      [](void*, tx_custom_pointer row) { return node(row)->expanded; },
      [](void*, tx_custom_pointer row, bool on) { node(row)->expanded = on; },
      [](void*, tx_custom_pointer) { return false; },
      [](void*) { return std::int32_t{0}; },
      [](void*, std::int32_t, tx_custom_pointer) {},
      [](void*, tx_custom_pointer) {},
      [](void*, tx_custom_pointer) {}};
};

// A fake outline over `tree` and its shown rows, read once.
struct shown_outline {
  explicit shown_outline(std::string_view tree) : outline(tree), rows(outline.pointer()) {
    rows.rebuild(selected);
  }
  fake_outline outline;
  host::window_logic::visible_rows rows;
  std::vector<std::size_t> selected;  // the selected rows' positions, from the first reading
};

}  // namespace tx::test
