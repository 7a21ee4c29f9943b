#include "tx_host/dialog/command_source.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace tx::host::dialog {

parsed_line script_source::next() {
  if (next_ == commands_.size()) return {};
  return {commands_[next_++], std::nullopt};
}

std::unique_ptr<script_source> load_script(const std::string& path, std::string& error) {
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  std::error_code regular_error;
  std::ifstream in;
  if (std::filesystem::is_regular_file(file, regular_error)) in.open(file, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (!in.is_open() || in.bad()) {
    error = path + ": cannot read the script";
    return nullptr;
  }
  parsed_script parsed = parse_script(text);
  if (parsed.error) {
    error = path + ":" + std::to_string(parsed.error->line) + ": " + parsed.error->message;
    return nullptr;
  }
  return std::make_unique<script_source>(path, std::move(parsed.commands));
}

parsed_line stream_source::next() {
  while (true) {
    if (prompt_ != nullptr) {
      std::fputs("txhost> ", prompt_);
      std::fflush(prompt_);
    }
    const std::optional<std::string> line = read_line();
    if (!line) return {};
    parsed_line parsed = parse_line(*line, ++line_);
    if (parsed.parsed || parsed.error) return parsed;
  }
}

std::optional<std::string> stream_source::read_line() {
  std::string line;
  int c = 0;
  while ((c = std::fgetc(in_)) != EOF && c != '\n') line += static_cast<char>(c);
  if (c == EOF && line.empty()) return std::nullopt;
  return line;
}

after_dialog next_after_dialog(command_source& commands, bool dialog_shown) {
  if (commands.interactive()) return {};
  const parsed_line rest = commands.next();
  const auto at = [&commands](std::size_t line) {
    return commands.name() + ":" + std::to_string(line) + ": ";
  };
  if (rest.error) return {false, at(rest.error->line) + rest.error->message};
  if (!rest.parsed) return {};
  if (rest.parsed->what == verb::reopen && dialog_shown) return {true, {}};
  return {false, at(rest.parsed->line) +
                     (dialog_shown ? "the dialog is already closed: only reopen can follow"
                                   : "no dialog was shown for this command")};
}

bool is_terminal(std::FILE* stream) noexcept {
#ifdef _WIN32
  return _isatty(_fileno(stream)) != 0;
#else
  return isatty(fileno(stream)) != 0;
#endif
}

}  // namespace tx::host::dialog
