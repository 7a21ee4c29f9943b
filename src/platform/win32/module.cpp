// Modules by address and by name: GetModuleHandleExW and GetModuleHandleW, neither of which
// loads anything or changes a reference count.
#include <string>

#include "platform/platform.h"
#include "platform/win32/handles.h"

namespace tx::platform {
namespace {

// An object of this library: its address tells which module holds the calling code.
const char anchor = 0;

}  // namespace

module own_module() noexcept {
  HMODULE handle = nullptr;
  const DWORD flags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (!GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&anchor), &handle)) return {};
  return module{handle};
}

module find_module(std::u16string_view file_name) noexcept {
  try {
    const std::u16string name(file_name);  // terminated
    if (name.empty() || name.find(u'\0') != std::u16string::npos) return {};
    return module{GetModuleHandleW(win32::wide(name.c_str()))};
  } catch (...) {
    return {};
  }
}

void* find_function(std::u16string_view file_name, const char* name) noexcept {
  try {
    const std::u16string module_name(file_name);
    if (module_name.empty() || module_name.find(u'\0') != std::u16string::npos) return nullptr;
    const HMODULE handle = GetModuleHandleW(win32::wide(module_name.c_str()));
    if (handle == nullptr || name == nullptr) return nullptr;
    return reinterpret_cast<void*>(GetProcAddress(handle, name));
  } catch (...) {
    return nullptr;
  }
}

}  // namespace tx::platform
