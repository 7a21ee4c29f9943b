#include <windows.h>

#include <string>

#include "tx_host/services/shared_library.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

// "error N: <the system's message>", the message without its trailing line break.
std::string describe(DWORD code) {
  wchar_t* buffer = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, code, 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
  std::u16string message(reinterpret_cast<const char16_t*>(buffer), length);
  if (buffer != nullptr) LocalFree(buffer);
  while (!message.empty() && (message.back() == u'\r' || message.back() == u'\n' ||
                              message.back() == u' ' || message.back() == u'.')) {
    message.pop_back();
  }
  std::string text = "error " + std::to_string(code);
  if (!message.empty()) text += ": " + to_utf8(message);
  return text;
}

}  // namespace

std::unique_ptr<shared_library> shared_library::open(const std::filesystem::path& path,
                                                     std::string& error) {
  // With the altered search path the library's imports are found beside it.
  HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (module == nullptr) {
    error = describe(GetLastError());
    return nullptr;
  }
  return std::make_unique<shared_library>(key{}, module);
}

shared_library::~shared_library() { FreeLibrary(static_cast<HMODULE>(handle_)); }

shared_library::symbol_address shared_library::symbol(const char* name) const noexcept {
  return reinterpret_cast<symbol_address>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

}  // namespace tx::host
