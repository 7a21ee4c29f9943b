// Modules natively: the plug-in's own table is linked in; a host library is found among the
// loaded ones with dlopen(RTLD_NOLOAD), which never loads anything, and its table with dlsym.
#include <dlfcn.h>

#include <string>

#include "platform/platform.h"
#include "platform/posix/resource_table.h"

namespace tx::platform {
namespace {

// "name.dll" (any case) becomes "name.so"; other names are kept. Module names are ASCII: any
// other character gives no name.
std::string native_file_name(std::u16string_view file_name) {
  std::string name;
  name.reserve(file_name.size());
  for (const char16_t unit : file_name) {
    if (unit == u'\0' || unit > 0x7F) return {};
    name.push_back(static_cast<char>(unit));
  }
  constexpr std::string_view windows_suffix = ".dll";
  if (name.size() > windows_suffix.size()) {
    const std::size_t at = name.size() - windows_suffix.size();
    std::string suffix = name.substr(at);
    for (char& c : suffix) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    if (suffix == windows_suffix) name.replace(at, windows_suffix.size(), ".so");
  }
  return name;
}

}  // namespace

module own_module() noexcept { return module{own_resources()}; }

module find_module(std::u16string_view file_name) noexcept {
  try {
    const std::string name = native_file_name(file_name);
    if (name.empty()) return {};
    void* const handle = dlopen(name.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle == nullptr) return {};
    const void* const table = dlsym(handle, exported_table_symbol);
    // The lookup took a reference of its own; whoever loaded the library keeps it loaded.
    dlclose(handle);
    return module{table};
  } catch (...) {
    return {};
  }
}

void* find_function(std::u16string_view file_name, const char* name) noexcept {
  try {
    const std::string module_name = native_file_name(file_name);
    if (module_name.empty() || name == nullptr) return nullptr;
    void* const handle = dlopen(module_name.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle == nullptr) return nullptr;
    void* const function = dlsym(handle, name);
    dlclose(handle);
    return function;
  } catch (...) {
    return nullptr;
  }
}

}  // namespace tx::platform
