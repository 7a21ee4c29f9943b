// Figures as the performance document writes them: whole numbers with thousands separators.
#pragma once

#include <cstddef>
#include <string>

namespace tx::bench {

// 1234567.8 → «1,234,568».
inline std::string grouped(double value) {
  const std::string digits =
      std::to_string(static_cast<long long>(value + (value < 0 ? -0.5 : 0.5)));
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0 && digits[i - 1] != '-') text += ',';
    text += digits[i];
  }
  return text;
}

}  // namespace tx::bench
