#include "tx_host/txhost/listing_limit.h"

namespace tx::host {
namespace {

// 1009603 → "1,009,603".
std::string grouped(std::size_t value) {
  const std::string digits = std::to_string(value);
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += ',';
    text += digits[i];
  }
  return text;
}

}  // namespace

std::string more_line(std::string_view indent, std::size_t hidden, std::string_view what) {
  std::string line(indent);
  line += "… and " + grouped(hidden) + " more ";
  line += what;
  line += " (--all lists them all)\n";
  return line;
}

}  // namespace tx::host
