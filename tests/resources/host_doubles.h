// What the host hands the loaders, written as the host writes it (plain C tables): visitors that
// record what they receive, a localizer that answers for the plug-in, and guards that set the
// host's language and localizer for one test.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "plugin/interface.h"
#include "plugin/localizer.h"
#include "tx/masked_bitmap.h"
#include "tx/services.h"
#include "tx/visitors.h"
#include "tx_host/basic.h"

namespace tx::test {

// Asks any pair for interface `name` through its root, as a host does; a null pair when the
// object does not implement it.
inline tx_custom_pointer host_query(tx_custom_pointer any, const char* name) {
  const tx_root_fn root_fn = *static_cast<const tx_root_fn*>(any.table);
  const tx_custom_pointer root = root_fn(any.object);
  tx_custom_pointer found{};
  static_cast<const tx_root_interface*>(root.table)
      ->query(root.object, name, &found.table, &found.object);
  return found;
}

// Records every text it is given.
struct string_recorder {
  std::vector<std::u16string> texts;

  custom_pointer pointer() { return {&table, this}; }

  static tx_custom_pointer root(void*) { return {}; }
  static void visit(void* self, const char16_t* text) {
    static_cast<string_recorder*>(self)->texts.emplace_back(text);
  }
  static constexpr tx_string_visitor_interface_0 table{&root, &visit};
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
};

struct bytes_recorder {
  std::vector<bytes_call> calls;

  custom_pointer pointer() { return {&table, this}; }

  static tx_custom_pointer root(void*) { return {}; }
  static void visit(void* self, std::int32_t rows, std::ptrdiff_t row_step, std::int32_t columns,
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
    static_cast<bytes_recorder*>(self)->calls.push_back(std::move(call));
  }
  static constexpr tx_thrice_interleaved_bytes_visitor_interface_0 table{&root, &visit};
};

// Receives masked bitmaps and, during the call, asks each what a host asks: the interface by
// name through its root, its size and both planes.
struct masked_bitmap_recorder {
  struct seen_bitmap {
    bool queried = false;
    std::int32_t width = 0;
    std::int32_t height = 0;
    bytes_recorder colour;
    bytes_recorder mask;
  };
  std::vector<seen_bitmap> bitmaps;

  custom_pointer pointer() { return {&table, this}; }

  static tx_custom_pointer root(void*) { return {}; }
  static void visit(void* self, tx_custom_pointer bitmap) {
    seen_bitmap seen;
    const tx_custom_pointer found = host_query(bitmap, TX_MASKED_BITMAP_INTERFACE_0);
    seen.queried = same(found, bitmap);
    const auto& ops = *static_cast<const tx_masked_bitmap_interface_0*>(bitmap.table);
    seen.width = ops.width(bitmap.object);
    seen.height = ops.height(bitmap.object);
    ops.visit_colour(bitmap.object, seen.colour.pointer());
    ops.visit_mask(bitmap.object, seen.mask.pointer());
    static_cast<masked_bitmap_recorder*>(self)->bitmaps.push_back(std::move(seen));
  }
  static constexpr tx_masked_bitmap_visitor_interface_0 table{&root, &visit};
};

// A localizer that records what it is asked and answers every string with its own text.
struct fake_localizer {
  enum class kind { text_data, string, bitmap };
  struct request {
    kind what;
    std::int32_t reference;
    std::uint32_t code_page;
  };
  std::vector<request> requests;
  bool answer = true;

  custom_pointer pointer() { return {&table, this}; }

  static tx_custom_pointer root(void*) { return {}; }
  static bool load_text_data(void* self, std::int32_t reference, tx_custom_pointer visitor,
                             std::uint32_t code_page) {
    return static_cast<fake_localizer*>(self)->respond(kind::text_data, reference, visitor,
                                                       code_page);
  }
  static bool load_string(void* self, std::int32_t reference, tx_custom_pointer visitor) {
    return static_cast<fake_localizer*>(self)->respond(kind::string, reference, visitor, 0);
  }
  static bool load_bitmap(void* self, std::int32_t reference, tx_custom_pointer) {
    auto& localizer = *static_cast<fake_localizer*>(self);
    localizer.requests.push_back({kind::bitmap, reference, 0});
    return localizer.answer;
  }
  static constexpr tx_localizer_interface_1 table{&root, &load_text_data, &load_string,
                                                  &load_bitmap};

 private:
  bool respond(kind what, std::int32_t reference, tx_custom_pointer visitor,
               std::uint32_t code_page) {
    requests.push_back({what, reference, code_page});
    if (answer && present(visitor)) {
      static_cast<const tx_string_visitor_interface_0*>(visitor.table)
          ->visit(visitor.object, u"from the localizer");
    }
    return answer;
  }
};

// The host's language for the length of a test; Russian again afterwards.
class language_guard {
 public:
  explicit language_guard(std::int32_t offset) { tx_host_set_lng(offset); }
  language_guard(const language_guard&) = delete;
  language_guard& operator=(const language_guard&) = delete;
  ~language_guard() { tx_host_set_lng(0); }
};

// The host's localizer for the length of a test; none afterwards.
class localizer_guard {
 public:
  explicit localizer_guard(custom_pointer localizer) { set_localizer(localizer); }
  localizer_guard(const localizer_guard&) = delete;
  localizer_guard& operator=(const localizer_guard&) = delete;
  ~localizer_guard() { set_localizer({}); }
};

inline constexpr std::int32_t russian = 0;
inline constexpr std::int32_t english = 50000;

}  // namespace tx::test
