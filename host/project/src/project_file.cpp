// Project files on disk: paths given as UTF-8, and the C streams the reader and writer use.
#include "tx_host/project/project_file.h"

#include "c_file.h"

namespace tx::host {

std::filesystem::path path_from_utf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

namespace detail {

c_file open_c_file(const std::filesystem::path& path, const char* mode) {
#ifdef _WIN32
  const std::wstring wide_mode(mode, mode + std::char_traits<char>::length(mode));
  return c_file(_wfopen(path.c_str(), wide_mode.c_str()));
#else
  return c_file(std::fopen(path.c_str(), mode));
#endif
}

}  // namespace detail
}  // namespace tx::host
