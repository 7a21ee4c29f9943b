#include "saved_names.h"

#include "tx_host/project.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

void print(std::FILE* stream, const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

std::string utf8(const char16_t* text) { return to_utf8(text != nullptr ? text : u""); }

}  // namespace

bool save_written_names(const std::string& path, std::FILE* out, std::FILE* err) {
  const std::size_t count = tx_host_project_caption_write_count();
  if (count == 0) return true;
  if (!tx_host_project_save(path.c_str())) {
    print(err, "txhost: " + std::string(tx_host_project_error()) + "\n");
    return false;
  }
  std::string report =
      "saved " + path + ": " + std::to_string(count) + (count == 1 ? " name\n" : " names\n");
  for (std::size_t i = 0; i < count; ++i) {
    tx_host_caption_write write{};
    if (!tx_host_project_caption_write(i, &write)) break;
    report += "  " + utf8(write.old_caption) + " → " + utf8(write.new_caption) + "\n";
  }
  print(out, report);
  std::fflush(out);
  return true;
}

}  // namespace tx::host
