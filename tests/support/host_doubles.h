// The host's half of the SDK interfaces, written as a host writes it (plain C tables): the
// visitors, views and referrers a host hands to the plug-in, each recording what it received.
// pointer() (or as<Table>()) is a double's pair; its root answers no interface.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tx/masked_bitmap.h"
#include "tx/referent.h"
#include "tx/toolkit/element.h"
#include "tx/toolkit/toolbar.h"
#include "tx/visitors.h"

namespace tx::test {

// Slot 0 of every double: a root whose query clears the outs and answers nothing.
inline tx_custom_pointer no_interfaces(void* self) {
  static constexpr tx_root_interface root{
      [](void*, const char*, const void** table, void** object) {
        *table = nullptr;
        *object = nullptr;
        return 1;
      }};
  return {&root, self};
}

// Asks any pair for interface `name` through its root, as a host does; the null pair when the
// object has none. The outs start stale, so a root that leaves them alone is seen.
inline tx_custom_pointer ask(tx_custom_pointer any, const char* name) {
  if (any.table == nullptr || any.object == nullptr) return {};
  const tx_custom_pointer root = (*static_cast<const tx_root_fn*>(any.table))(any.object);
  tx_custom_pointer found{&found, &found};
  static_cast<const tx_root_interface*>(root.table)
      ->query(root.object, name, &found.table, &found.object);
  return found;
}

template <class Table>
const Table& ops(tx_custom_pointer cp) {
  return *static_cast<const Table*>(cp.table);
}

// A double with one table, `Self::table`.
template <class Self>
struct recorder {
  tx_custom_pointer pointer() { return {&Self::table, static_cast<Self*>(this)}; }
  static Self& self(void* object) { return *static_cast<Self*>(object); }
};

struct string_sink : recorder<string_sink> {
  std::vector<std::u16string> texts;
  static constexpr tx_string_visitor_interface_0 table{
      &no_interfaces, [](void* s, const char16_t* text) { self(s).texts.emplace_back(text); }};
};

struct element_sink : recorder<element_sink> {
  std::vector<tx_custom_pointer> elements;
  static constexpr tx_element_visitor_interface_0 table{
      &no_interfaces, [](void* s, tx_custom_pointer e) { self(s).elements.push_back(e); }};
};

// An element's view (or a tool's state hook): the change bits it was told.
struct recording_view : recorder<recording_view> {
  std::vector<std::uint32_t> told;
  static constexpr tx_element_view_interface_0 table{
      &no_interfaces, [](void* s, std::uint32_t what) { self(s).told.push_back(what); }};
};

// Any visitor whose one slot takes a pair: service visitors, the localizer's visitor.
struct pair_sink {
  std::vector<tx_custom_pointer> pairs;
  template <class Table>
  tx_custom_pointer as() {
    static constexpr Table table{&no_interfaces, [](void* s, tx_custom_pointer p) {
                                   static_cast<pair_sink*>(s)->pairs.push_back(p);
                                 }};
    return {&table, this};
  }
};

// Any visitor whose one slot takes an id and a pair: utilities, dialogs, registry answers.
struct named_sink {
  std::vector<std::pair<std::u16string, tx_custom_pointer>> entries;
  template <class Table>
  tx_custom_pointer as() {
    static constexpr Table table{&no_interfaces,
                                 [](void* s, const char16_t* id, tx_custom_pointer p) {
                                   static_cast<named_sink*>(s)->entries.emplace_back(id, p);
                                 }};
    return {&table, this};
  }
};

// One call of a bytes visitor, with the bytes read back through the steps it was given, in
// visit order: rows, then columns, then channels.
struct bytes_call {
  std::int32_t rows = 0;
  std::ptrdiff_t row_step = 0;
  std::int32_t columns = 0;
  std::ptrdiff_t column_step = 0;
  std::int32_t channels = 0;
  std::ptrdiff_t channel_step = 0;
  std::vector<std::uint8_t> seen;

  // Channel `channel` of the pixel at `column` of `row` (row 0 = the first row visited).
  std::uint8_t at(std::int32_t row, std::int32_t column, std::int32_t channel) const {
    return seen.at(static_cast<std::size_t>((row * columns + column) * channels + channel));
  }
  std::vector<std::int32_t> shape() const { return {rows, columns, channels}; }
};

struct bytes_sink : recorder<bytes_sink> {
  std::vector<bytes_call> calls;
  static void visit(void* s, std::int32_t rows, std::ptrdiff_t row_step, std::int32_t columns,
                    std::ptrdiff_t column_step, std::int32_t channels, std::ptrdiff_t channel_step,
                    const std::uint8_t* first) {
    bytes_call call{rows, row_step, columns, column_step, channels, channel_step, {}};
    for (std::int32_t r = 0; r < rows; ++r) {
      for (std::int32_t c = 0; c < columns; ++c) {
        for (std::int32_t k = 0; k < channels; ++k) {
          call.seen.push_back(first[r * row_step + c * column_step + k * channel_step]);
        }
      }
    }
    self(s).calls.push_back(std::move(call));
  }
  static constexpr tx_thrice_interleaved_bytes_visitor_interface_0 table{&no_interfaces, &visit};
};

// Receives masked bitmaps and, during the call, asks each what a host asks: the interface by
// name through its root, its size and both planes.
struct masked_bitmap_sink : recorder<masked_bitmap_sink> {
  struct seen_bitmap {
    bool answers_own_name = false;  // asked by name through its root, it answers itself
    std::int32_t width = 0;
    std::int32_t height = 0;
    bytes_sink colour;
    bytes_sink mask;
  };
  std::vector<seen_bitmap> bitmaps;
  static void visit(void* s, tx_custom_pointer bitmap) {
    seen_bitmap seen;
    const tx_custom_pointer found = ask(bitmap, TX_MASKED_BITMAP_INTERFACE_0);
    seen.answers_own_name = found.table == bitmap.table && found.object == bitmap.object;
    const auto& t = ops<tx_masked_bitmap_interface_0>(bitmap);
    seen.width = t.width(bitmap.object);
    seen.height = t.height(bitmap.object);
    t.visit_colour(bitmap.object, seen.colour.pointer());
    t.visit_mask(bitmap.object, seen.mask.pointer());
    self(s).bitmaps.push_back(std::move(seen));
  }
  static constexpr tx_masked_bitmap_visitor_interface_0 table{&no_interfaces, &visit};
};

// A host toolbar: records each offered tool's id and pair and "|" for a new group; takes
// `limit` tools (all when negative), declining the last one it takes.
struct tools_sink : recorder<tools_sink> {
  std::vector<std::u16string> seen;
  std::vector<tx_custom_pointer> tools;
  int limit = -1;
  static constexpr tx_tools_visitor_interface_0 table{
      &no_interfaces,
      [](void* s, const char16_t* id, tx_custom_pointer tool) {
        auto& r = self(s);
        r.seen.emplace_back(id);
        r.tools.push_back(tool);
        return r.limit < 0 || static_cast<int>(r.tools.size()) < r.limit;
      },
      [](void* s) { self(s).seen.emplace_back(u"|"); }};
};

// A host referrer: answers `holding`, logs "<name>:holds" and "<name>:released" to `log`.
struct referrer {
  std::string name;
  bool holding = true;
  std::vector<std::string>* log = nullptr;
  std::function<void()> on_holds{};  // runs inside the question, e.g. to detach another referrer
  tx_custom_pointer last_released{};

  tx_custom_pointer pointer() { return {&table, this}; }
  static referrer& self(void* s) { return *static_cast<referrer*>(s); }
  void note(const char* what) {
    if (log != nullptr) log->push_back(name + what);
  }
  static constexpr tx_referrer_interface_1 table{&no_interfaces,
                                                 [](void* s, tx_custom_pointer referent) {
                                                   self(s).last_released = referent;
                                                   self(s).note(":released");
                                                 },
                                                 [](void* s, tx_custom_pointer) {
                                                   self(s).note(":holds");
                                                   if (self(s).on_holds) self(s).on_holds();
                                                   return self(s).holding;
                                                 }};
};

}  // namespace tx::test
