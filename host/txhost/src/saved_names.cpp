#include "tx_host/txhost/saved_names.h"

#include <algorithm>

#include "tx_host/project.h"
#include "tx_host/services/utf.h"
#include "tx_host/txhost/listing_limit.h"
#include "tx_host/txhost/step_timer.h"

namespace tx::host {
namespace {

void print(std::FILE* stream, const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

void append_utf8(std::string& out, const char16_t* text) {
  out += to_utf8(text != nullptr ? text : u"");
}

}  // namespace

bool save_written_names(const std::string& path, const saving_report& report) {
  const std::size_t count = tx_host_project_caption_write_count();
  if (count == 0) return true;
  const step_timer saving(report.timings);
  if (!tx_host_project_save(path.c_str())) {
    print(report.err, "txhost: " + std::string(tx_host_project_error()) + "\n");
    return false;
  }
  saving.report("saving " + path);
  std::string text =
      "saved " + path + ": " + std::to_string(count) + (count == 1 ? " name\n" : " names\n");
  // The names go out in pieces, so that a million of them are never held at once.
  constexpr std::size_t piece = 64 * 1024;
  const std::size_t listed = std::min(count, report.listed_names);
  for (std::size_t i = 0; i < listed; ++i) {
    tx_host_caption_write write{};
    if (!tx_host_project_caption_write(i, &write)) break;
    text += "  ";
    append_utf8(text, write.old_caption);
    text += " → ";
    append_utf8(text, write.new_caption);
    text += '\n';
    if (text.size() >= piece) {
      print(report.out, text);
      text.clear();
    }
  }
  if (listed < count) text += more_line("  ", count - listed, "names");
  print(report.out, text);
  std::fflush(report.out);
  return true;
}

}  // namespace tx::host
