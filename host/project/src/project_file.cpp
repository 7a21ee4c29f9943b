// Project files on disk: read whole, then parsed; written to a temporary file beside the target
// and renamed over it.
#include "tx_host/project/project_file.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace tx::host {
namespace {

std::string utf8_file_name(const std::filesystem::path& path) {
  const std::u8string name = path.filename().u8string();
  return std::string(name.begin(), name.end());
}

}  // namespace

std::filesystem::path path_from_utf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::unique_ptr<tx_prj> read_project_file(const std::filesystem::path& path,
                                          project_file_error& error) {
  std::error_code ec;
  const std::filesystem::file_status status = std::filesystem::status(path, ec);
  if (!std::filesystem::exists(status)) {
    error = {"", "no such file"};
    return nullptr;
  }
  if (std::filesystem::is_directory(status)) {
    error = {"", "is a folder, not a project file"};
    return nullptr;
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    error = {"", "cannot be opened"};
    return nullptr;
  }
  const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (in.bad()) {
    error = {"", "cannot be read"};
    return nullptr;
  }
  return parse_project(text, error);
}

bool write_project_file(const tx_prj& project, const std::filesystem::path& path,
                        project_file_error& error) {
  const std::string text = format_project(project);
  std::filesystem::path temporary = path;
  temporary += ".saving";
  std::error_code ec;
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) {
      error = {"", "cannot create the temporary file " + utf8_file_name(temporary)};
      return false;
    }
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.close();
    if (!out) {
      std::filesystem::remove(temporary, ec);
      error = {"", "cannot write the temporary file " + utf8_file_name(temporary)};
      return false;
    }
  }
  std::filesystem::rename(temporary, path, ec);
  if (ec) {
    error = {"", "cannot replace the file: " + ec.message()};
    std::filesystem::remove(temporary, ec);
    return false;
  }
  return true;
}

}  // namespace tx::host
