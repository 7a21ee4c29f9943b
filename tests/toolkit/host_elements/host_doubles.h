// The host's side of the element interfaces, written as a host writes it (plain C tables): it
// asks an element for its interface through the root, calls the slots, and hands in views and
// visitors that record what the plug-in did with them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tx/toolkit/element.h"
#include "tx/toolkit/toolbar.h"
#include "tx/visitors.h"

namespace tx::test {

// Asks any pair for interface `name` through its root; the null pair when it has none.
inline tx_custom_pointer ask(tx_custom_pointer any, const char* name) {
  const tx_custom_pointer root = (*static_cast<const tx_root_fn*>(any.table))(any.object);
  tx_custom_pointer found{&found, &found};
  static_cast<const tx_root_interface*>(root.table)
      ->query(root.object, name, &found.table, &found.object);
  return found;
}

inline bool same_pair(tx_custom_pointer a, tx_custom_pointer b) {
  return a.table == b.table && a.object == b.object;
}

template <class Table>
const Table& ops(tx_custom_pointer cp) {
  return *static_cast<const Table*>(cp.table);
}

// Each double records what it receives; pointer() is its pair.
template <class Self>
struct recorder {
  tx_custom_pointer pointer() { return {&Self::table, static_cast<Self*>(this)}; }
  static Self& self(void* object) { return *static_cast<Self*>(object); }
};

struct recording_view : recorder<recording_view> {
  std::vector<std::uint32_t> told;
  static constexpr tx_element_view_interface_0 table{
      nullptr, [](void* s, std::uint32_t what) { self(s).told.push_back(what); }};
};

struct element_sink : recorder<element_sink> {
  std::vector<tx_custom_pointer> elements;
  static constexpr tx_element_visitor_interface_0 table{
      nullptr, [](void* s, tx_custom_pointer e) { self(s).elements.push_back(e); }};
};

struct string_sink : recorder<string_sink> {
  std::vector<std::u16string> texts;
  static constexpr tx_string_visitor_interface_0 table{
      nullptr, [](void* s, const char16_t* text) { self(s).texts.emplace_back(text); }};
};

// Records rows × columns × channels of every picture.
struct bytes_sink : recorder<bytes_sink> {
  std::vector<std::vector<std::int32_t>> pictures;
  static constexpr tx_thrice_interleaved_bytes_visitor_interface_0 table{
      nullptr, [](void* s, std::int32_t rows, std::ptrdiff_t, std::int32_t columns, std::ptrdiff_t,
                  std::int32_t channels, std::ptrdiff_t, const std::uint8_t*) {
        self(s).pictures.push_back({rows, columns, channels});
      }};
};

// A host toolbar: records each offered tool's id and pair and "|" for a new group; takes
// `limit` tools (all when negative), declining the last one it takes.
struct tools_recorder : recorder<tools_recorder> {
  std::vector<std::u16string> seen;
  std::vector<tx_custom_pointer> tools;
  int limit = -1;
  static constexpr tx_tools_visitor_interface_0 table{
      nullptr,
      [](void* s, const char16_t* id, tx_custom_pointer tool) {
        auto& r = self(s);
        r.seen.emplace_back(id);
        r.tools.push_back(tool);
        return r.limit < 0 || static_cast<int>(r.tools.size()) < r.limit;
      },
      [](void* s) { self(s).seen.emplace_back(u"|"); }};
};

}  // namespace tx::test
