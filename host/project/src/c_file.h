// A C stream on a file named by a filesystem path (a wide-character name on Windows), closed
// when its owner goes: what the JSON library's file streams read from and write to.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace tx::host::detail {

struct file_closer {
  void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};
using c_file = std::unique_ptr<std::FILE, file_closer>;

// `mode` as std::fopen takes it ("rb", "wb"); null when the file cannot be opened.
c_file open_c_file(const std::filesystem::path& path, const char* mode);

}  // namespace tx::host::detail
