#include "tx_host/dialog/script_values.h"

#include <algorithm>
#include <charconv>

namespace tx::host::dialog {

std::string quoted(std::string_view text) {
  // Built by appending: mingw's g++ 12 at -O3 warns falsely on a literal + std::string here.
  std::string out(1, '"');
  out.append(text).push_back('"');
  return out;
}

std::optional<std::int32_t> whole_number(std::string_view text) {
  std::int32_t n = 0;
  const char* first = text.data();
  const char* last = text.data() + text.size();
  if (first != last && *first == '+') ++first;
  const auto [end, error] = std::from_chars(first, last, n);
  if (first == last || error != std::errc() || end != last) return std::nullopt;
  return n;
}

std::optional<std::size_t> position(std::string_view text) {
  if (text.empty() ||
      !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  const std::optional<std::int32_t> n = whole_number(text);
  if (!n || *n < 1) return std::nullopt;
  return static_cast<std::size_t>(*n);
}

std::string_view bare(std::string_view caption) noexcept {
  while (!caption.empty() && (caption.back() == ':' || caption.back() == ' ')) {
    caption.remove_suffix(1);
  }
  return caption;
}

std::optional<bool> on_off(std::string_view value) {
  for (const std::string_view on : {"on", "yes", "true", "1"}) {
    if (value == on) return true;
  }
  for (const std::string_view off : {"off", "no", "false", "0"}) {
    if (value == off) return false;
  }
  return std::nullopt;
}

}  // namespace tx::host::dialog
