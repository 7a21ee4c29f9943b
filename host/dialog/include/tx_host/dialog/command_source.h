// Where the dialog driver's commands come from: a script file read and parsed before anything
// runs, or a stream read line by line (standard input; a person at a terminal is prompted).
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tx_host/dialog/script.h"

namespace tx::host::dialog {

class command_source {
 public:
  command_source(const command_source&) = delete;
  command_source& operator=(const command_source&) = delete;
  virtual ~command_source() = default;

  // The next command or the error of the next line that does not parse; neither at the end of
  // the input. Blank and comment lines are skipped.
  virtual parsed_line next() = 0;
  // A person types the commands: they are not echoed, and an error does not end the session.
  virtual bool interactive() const noexcept = 0;
  // The source's name for messages ("run.txt", "<stdin>").
  const std::string& name() const noexcept { return name_; }

 protected:
  explicit command_source(std::string name) : name_(std::move(name)) {}

 private:
  std::string name_;
};

// Commands parsed beforehand.
class script_source final : public command_source {
 public:
  script_source(std::string name, std::vector<command> commands)
      : command_source(std::move(name)), commands_(std::move(commands)) {}

  parsed_line next() override;
  bool interactive() const noexcept override { return false; }
  // Whether every command was taken.
  bool finished() const noexcept { return next_ == commands_.size(); }

 private:
  std::vector<command> commands_;
  std::size_t next_ = 0;
};

// The script file at `path` (UTF-8), parsed whole. Null when it cannot be read or a line does
// not parse; `error` then says why, as "PATH: why" or "PATH:LINE: why".
std::unique_ptr<script_source> load_script(const std::string& path, std::string& error);

// Lines read from `in` as they are needed. With a `prompt` stream, the source is interactive
// and writes a prompt there before each line.
class stream_source final : public command_source {
 public:
  stream_source(std::string name, std::FILE* in, std::FILE* prompt)
      : command_source(std::move(name)), in_(in), prompt_(prompt) {}

  parsed_line next() override;
  bool interactive() const noexcept override { return prompt_ != nullptr; }

 private:
  // The next line without its line break; nothing at the end of the input.
  std::optional<std::string> read_line();

  std::FILE* in_;
  std::FILE* prompt_;
  std::size_t line_ = 0;
};

// After a dialog closed, what the commands of a script say next: `reopen` (taken: the utility
// runs again), or else the error of a command left over ("NAME:LINE: why"; `dialog_shown` tells
// whether any dialog took commands) or of the next line that does not parse; neither when the
// commands ended with the dialog. A person's input is not read further.
struct after_dialog {
  bool reopen = false;
  std::string error;
};
after_dialog next_after_dialog(command_source& commands, bool dialog_shown);

// Whether `stream` is a terminal (a person types there).
bool is_terminal(std::FILE* stream) noexcept;

}  // namespace tx::host::dialog
