// Host-side doubles for toolkit tests: a view that records what it was told, an element
// visitor and a string visitor that collect what they receive.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tx/toolkit/element.h"
#include "tx/visitors.h"

namespace tx::test {

struct recording_view {
  std::vector<std::uint32_t> told;
  tx_custom_pointer pointer() {
    static constexpr tx_element_view_interface_0 t{
        nullptr, [](void* self, std::uint32_t what) {
          static_cast<recording_view*>(self)->told.push_back(what);
        }};
    return {&t, this};
  }
};

struct element_sink {
  std::vector<tx_custom_pointer> elements;
  tx_custom_pointer pointer() {
    static constexpr tx_element_visitor_interface_0 t{
        nullptr, [](void* self, tx_custom_pointer e) {
          static_cast<element_sink*>(self)->elements.push_back(e);
        }};
    return {&t, this};
  }
};

struct string_sink {
  std::vector<std::u16string> texts;
  tx_custom_pointer pointer() {
    static constexpr tx_string_visitor_interface_0 t{
        nullptr, [](void* self, const char16_t* text) {
          static_cast<string_sink*>(self)->texts.emplace_back(text);
        }};
    return {&t, this};
  }
};

}  // namespace tx::test
