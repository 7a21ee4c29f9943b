#include "scale_results.h"

#include <cstdio>
#include <cstdlib>
#include <istream>
#include <ostream>

namespace tx::bench {

void scale_results::set(const std::string& key, double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.9g", value);
  values_[key] = text;
}

void scale_results::set_text(const std::string& key, std::string_view text) {
  std::string& value = values_[key];
  value = text;
  // One line a value: a reason that spans lines is kept on one.
  for (char& c : value) {
    if (c == '\n' || c == '\r' || c == '\t') c = ' ';
  }
}

std::optional<double> scale_results::number(std::string_view key) const {
  const std::string* value = text(key);
  if (value == nullptr || value->empty()) return std::nullopt;
  char* end = nullptr;
  const double parsed = std::strtod(value->c_str(), &end);
  if (end != value->c_str() + value->size()) return std::nullopt;
  return parsed;
}

const std::string* scale_results::text(std::string_view key) const {
  const auto found = values_.find(key);
  return found != values_.end() ? &found->second : nullptr;
}

void scale_results::write(std::ostream& out) const {
  for (const auto& [key, value] : values_) out << key << '\t' << value << '\n';
}

std::optional<scale_results> scale_results::read(std::istream& in, std::string& error) {
  scale_results results;
  std::string line;
  for (std::size_t number = 1; std::getline(in, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty()) continue;
    const std::size_t tab = line.find('\t');
    if (tab == std::string::npos || tab == 0) {
      error = "line " + std::to_string(number) + " is not «key<TAB>value»";
      return std::nullopt;
    }
    results.values_[line.substr(0, tab)] = line.substr(tab + 1);
  }
  if (in.bad()) {
    error = "cannot be read";
    return std::nullopt;
  }
  return results;
}

std::string tree_key(std::string_view operation, std::size_t elements, std::string_view what) {
  return "tree." + std::string(operation) + "." + std::to_string(elements) + "." +
         std::string(what);
}

std::string memory_key(std::string_view row, std::size_t elements) {
  return "memory." + std::string(row) + "." + std::to_string(elements);
}

std::string skipped_key(std::size_t elements) { return "skipped." + std::to_string(elements); }

std::string rename_key(std::string_view operation, std::string_view what) {
  return "rename." + std::string(operation) + "." + std::string(what);
}

}  // namespace tx::bench
