// Multi-byte text to UTF-16 with MultiByteToWideChar, in the code page the caller names.
#include <climits>

#include "platform/platform.h"
#include "platform/win32/handles.h"

namespace tx::platform {

std::optional<std::u16string> to_utf16(std::span<const std::byte> text, std::uint32_t code_page) {
  if (text.empty()) return std::u16string{};
  if (text.size() > INT_MAX) return std::nullopt;
  const auto* bytes = reinterpret_cast<const char*>(text.data());
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(code_page, 0, bytes, size, nullptr, 0);
  if (length <= 0) return std::nullopt;
  std::u16string wide(static_cast<std::size_t>(length), u'\0');
  if (MultiByteToWideChar(code_page, 0, bytes, size, win32::wide(wide.data()), length) != length) {
    return std::nullopt;
  }
  return wide;
}

}  // namespace tx::platform
