// Case mapping with the user32 case tables (the CharLowerW/CharUpperW family), in place and by
// length, so that embedded NULs do not stop it.
#include <algorithm>

#include "platform/platform.h"
#include "platform/win32/handles.h"

namespace tx::platform {
namespace {

template <DWORD (*Map)(LPWSTR, DWORD)>
void map_in_chunks(std::span<char16_t> text) noexcept {
  constexpr std::size_t chunk = 1u << 30;
  while (!text.empty()) {
    const std::size_t count = std::min(text.size(), chunk);
    Map(win32::wide(text.data()), static_cast<DWORD>(count));
    text = text.subspan(count);
  }
}

}  // namespace

void to_lower(std::span<char16_t> text) noexcept { map_in_chunks<&CharLowerBuffW>(text); }

void to_upper(std::span<char16_t> text) noexcept { map_in_chunks<&CharUpperBuffW>(text); }

}  // namespace tx::platform
