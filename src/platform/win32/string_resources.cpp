// Strings and raw resource data of a module: LoadStringW, FindResourceW and LockResource read
// the module's mapped image in place.
#include <climits>

#include "platform/platform.h"
#include "platform/win32/handles.h"

namespace tx::platform {

std::u16string_view stored_string(module from, std::uint32_t id) noexcept {
  if (!from || id > max_resource_id) return {};
  // With a size of 0, LoadStringW answers a read-only pointer into the resource and the
  // string's counted length instead of copying it.
  const wchar_t* text = nullptr;
  const int length = LoadStringW(win32::native(from), id, reinterpret_cast<LPWSTR>(&text), 0);
  if (length <= 0 || text == nullptr) return {};
  return {reinterpret_cast<const char16_t*>(text), static_cast<std::size_t>(length)};
}

std::size_t copy_string(module from, std::uint32_t id, std::span<char16_t> buffer) noexcept {
  if (!from || id > max_resource_id || buffer.size() < 2 || buffer.size() > INT_MAX) return 0;
  const int copied = LoadStringW(win32::native(from), id, win32::wide(buffer.data()),
                                 static_cast<int>(buffer.size()));
  return copied > 0 ? static_cast<std::size_t>(copied) : 0;
}

std::span<const std::byte> resource_data(module from, std::uint32_t type,
                                         std::uint32_t id) noexcept {
  if (!from || id == 0 || id > max_resource_id || type == 0 || type > max_resource_id) return {};
  const HMODULE handle = win32::native(from);
  // Resource memory belongs to the mapped module: nothing to release.
  const HRSRC found = FindResourceW(handle, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(type));
  if (found == nullptr) return {};
  const HGLOBAL loaded = LoadResource(handle, found);
  const void* bytes = loaded != nullptr ? LockResource(loaded) : nullptr;
  const DWORD size = SizeofResource(handle, found);
  if (bytes == nullptr || size == 0) return {};
  return {static_cast<const std::byte*>(bytes), size};
}

}  // namespace tx::platform
