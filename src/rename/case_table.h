// Case mapping for the rename functions: the platform's answers (tx::platform::to_lower and
// to_upper), asked once for every code unit outside the surrogate range and then looked up.
// The platform maps code unit by code unit except a surrogate pair, which it maps as one code
// point; text from its first surrogate on is therefore handed to the platform itself, so the
// result is always exactly the platform's. «Дорога ROAD» lowers to «дорога road».
#pragma once

#include <span>

namespace tx::rename {

void lower_case_in_place(std::span<char16_t> text) noexcept;
void upper_case_in_place(std::span<char16_t> text) noexcept;

}  // namespace tx::rename
