// Reading a parsed document field by field, each position named by its JSON pointer, so that a
// refusal says exactly where it is.
#pragma once

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace tx::host::detail {

// Object keys keep the document's order, which the writer relies on too.
using json = nlohmann::ordered_json;
using json_pointer = json::json_pointer;

// Thrown while reading: where (a JSON pointer, empty for the whole document) and what.
struct refusal {
  std::string where;
  std::string what;
};

// The JSON type with its article, as messages say it: "a string", "an integer", "a number" (one
// with a fraction or exponent), "null".
std::string_view type_name(json::value_t type);

[[noreturn]] void refuse(const json_pointer& at, std::string what);

// "expected a string, found an integer" unless `value` has the type `expected`.
void expect_type(const json& value, json::value_t expected, const json_pointer& at);

// The fields of one object of the document.
class object_fields {
 public:
  // Refuses a value that is not an object.
  object_fields(const json& value, json_pointer at);

  // Refuses the first key that is not among `known`: an unknown key would be lost on saving.
  void allow_only(std::initializer_list<std::string_view> known) const;

  const json_pointer& at() const noexcept { return at_; }
  json_pointer at(std::string_view key) const { return at_ / std::string(key); }
  bool has(std::string_view key) const { return object_.contains(key); }

  // The value of `key`, refused when missing or (for the typed ones) of another type.
  const json& value(std::string_view key) const;
  const json& array(std::string_view key) const;
  std::string text(std::string_view key) const;
  bool flag(std::string_view key) const;

 private:
  const json& object_;
  json_pointer at_;
};

}  // namespace tx::host::detail
