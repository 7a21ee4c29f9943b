#include <dlfcn.h>

#include "tx_host/services/shared_library.h"

namespace tx::host {

std::unique_ptr<shared_library> shared_library::open(const std::filesystem::path& path,
                                                     std::string& error) {
  dlerror();
  void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    const char* reason = dlerror();
    error = reason != nullptr ? reason : "dlopen failed";
    return nullptr;
  }
  return std::make_unique<shared_library>(key{}, handle);
}

shared_library::~shared_library() { dlclose(handle_); }

shared_library::symbol_address shared_library::symbol(const char* name) const noexcept {
  return reinterpret_cast<symbol_address>(dlsym(handle_, name));
}

}  // namespace tx::host
