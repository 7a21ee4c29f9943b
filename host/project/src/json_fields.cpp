#include "json_fields.h"

#include <algorithm>
#include <utility>

namespace tx::host::detail {

std::string_view type_name(json::value_t type) {
  switch (type) {
    case json::value_t::object:
      return "an object";
    case json::value_t::array:
      return "an array";
    case json::value_t::string:
      return "a string";
    case json::value_t::boolean:
      return "a boolean";
    case json::value_t::number_integer:
    case json::value_t::number_unsigned:
      return "an integer";
    case json::value_t::number_float:
      return "a number";
    case json::value_t::null:
      return "null";
    case json::value_t::binary:
    case json::value_t::discarded:
      break;
  }
  return "a value of no JSON type";
}

void refuse(const json_pointer& at, std::string what) {
  throw refusal{at.to_string(), std::move(what)};
}

void expect_type(const json& value, json::value_t expected, const json_pointer& at) {
  if (value.type() != expected) {
    refuse(at, "expected " + std::string(type_name(expected)) + ", found " +
                   std::string(type_name(value.type())));
  }
}

object_fields::object_fields(const json& value, json_pointer at)
    : object_(value), at_(std::move(at)) {
  expect_type(object_, json::value_t::object, at_);
}

void object_fields::allow_only(std::initializer_list<std::string_view> known) const {
  for (const auto& [key, value] : object_.items()) {
    if (std::find(known.begin(), known.end(), key) == known.end()) {
      refuse(at(key), "unknown key");
    }
  }
}

const json& object_fields::value(std::string_view key) const {
  const auto found = object_.find(key);
  if (found == object_.end()) refuse(at(key), "missing");
  return *found;
}

const json& object_fields::array(std::string_view key) const {
  const json& found = value(key);
  expect_type(found, json::value_t::array, at(key));
  return found;
}

std::string object_fields::text(std::string_view key) const {
  const json& found = value(key);
  expect_type(found, json::value_t::string, at(key));
  return found.get<std::string>();
}

bool object_fields::flag(std::string_view key) const {
  const json& found = value(key);
  expect_type(found, json::value_t::boolean, at(key));
  return found.get<bool>();
}

}  // namespace tx::host::detail
