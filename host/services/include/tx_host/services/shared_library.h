// A loaded shared library (Windows: a DLL through LoadLibraryExW; POSIX: dlopen), closed when
// the object is destroyed.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace tx::host {

class shared_library {
 public:
  // A function's address as found, to be cast to its real type by the caller.
  using symbol_address = void (*)();

  // Loads the library at `path` (absolute) with its own folder searched first for its imports.
  // On failure answers null and writes the loader's reason into `error`.
  static std::unique_ptr<shared_library> open(const std::filesystem::path& path,
                                              std::string& error);

  // Only open() makes one: the key is private.
  class key {
    friend class shared_library;
    key() = default;
  };
  shared_library(key, void* handle) noexcept : handle_(handle) {}
  shared_library(const shared_library&) = delete;
  shared_library& operator=(const shared_library&) = delete;
  ~shared_library();

  // The exported function `name`, or null when the library has no such export.
  symbol_address symbol(const char* name) const noexcept;

 private:
  void* handle_;
};

}  // namespace tx::host
