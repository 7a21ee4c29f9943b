// The JSON types as a project file's refusals name them: "expected a boolean, found a string".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tx::host::detail {

enum class json_type : std::uint8_t { object, array, string, boolean, integer, number, null };

constexpr std::string_view type_name(json_type type) noexcept {
  switch (type) {
    case json_type::object:
      return "an object";
    case json_type::array:
      return "an array";
    case json_type::string:
      return "a string";
    case json_type::boolean:
      return "a boolean";
    case json_type::integer:
      return "an integer";
    case json_type::number:
      return "a number";
    case json_type::null:
      break;
  }
  return "null";
}

// "expected an integer, found a string".
inline std::string type_mismatch(json_type expected, json_type found) {
  std::string text = "expected ";
  text += type_name(expected);
  text += ", found ";
  text += type_name(found);
  return text;
}

}  // namespace tx::host::detail
