// The reference host's project-file reader on any bytes: either a refusal that says where and
// what, or a project that writes back to a document which reads again to the same project.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tx_host/project/project_file.h"
#include "tx_host/project/project_model.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  tx::host::project_file_error error;
  const auto project = tx::host::parse_project(text, error);
  if (!project) {
    if (error.what.empty()) std::abort();
    return 0;
  }
  const std::string written = tx::host::format_project(*project);
  tx::host::project_file_error again;
  const auto reread = tx::host::parse_project(written, again);
  if (!reread || tx::host::format_project(*reread) != written) std::abort();
  return 0;
}
