// The small and the capital form of a Latin or a Cyrillic letter (Ѐ to џ, Ё among them): how a
// script's key names and the window's access keys match letters without regard to case. Any other
// character is its own form.
#pragma once

namespace tx::host {

constexpr char32_t small_letter(char32_t c) noexcept {
  if ((c >= U'A' && c <= U'Z') || (c >= 0x0410 && c <= 0x042F)) return c + 0x20;  // A–Z, А–Я
  if (c >= 0x0400 && c <= 0x040F) return c + 0x50;                                // Ѐ–Џ
  return c;
}

constexpr char32_t capital_letter(char32_t c) noexcept {
  if ((c >= U'a' && c <= U'z') || (c >= 0x0430 && c <= 0x044F)) return c - 0x20;  // a–z, а–я
  if (c >= 0x0450 && c <= 0x045F) return c - 0x50;                                // ѐ–џ
  return c;
}

}  // namespace tx::host
