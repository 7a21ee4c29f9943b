// One measured command run as a process of its own (POSIX): its wall time from start to exit and
// the peak resident memory of it and of every process below it that it waited for, as the
// system counts it (wait4's ru_maxrss). Standard output goes to /dev/null or a file, standard
// error to a file, so that what the command tells there can be read afterwards.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tx::bench {

struct child_run {
  bool started = false;   // false: the command could not be started (`error` says why)
  int exit_status = -1;   // the exit status, or -1 when it ended by a signal
  double wall_ms = 0;     // from start to exit
  double peak_bytes = 0;  // the largest resident set of the process and its waited children
  std::string error;
  bool succeeded() const noexcept { return started && exit_status == 0; }
};

// Runs `command` (the program's path and its arguments; found on PATH when it holds no slash),
// with its output going to `out` and its errors to `err`, and waits for it.
child_run run_child(const std::vector<std::string>& command, const std::filesystem::path& out,
                    const std::filesystem::path& err);

}  // namespace tx::bench
