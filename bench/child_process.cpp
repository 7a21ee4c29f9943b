#include "child_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <cstring>

extern char** environ;

namespace tx::bench {

child_run run_child(const std::vector<std::string>& command, const std::filesystem::path& out,
                    const std::filesystem::path& err) {
  child_run run;
  if (command.empty()) {
    run.error = "no command";
    return run;
  }
  std::vector<char*> argv;
  argv.reserve(command.size() + 1);
  for (const std::string& word : command) argv.push_back(const_cast<char*>(word.c_str()));
  argv.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  const auto start = std::chrono::steady_clock::now();
  pid_t pid = 0;
  const int failed = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) {
    run.error = command[0] + ": " + std::strerror(failed);
    return run;
  }
  int status = 0;
  rusage usage{};
  pid_t waited = 0;
  do {
    waited = wait4(pid, &status, 0, &usage);
  } while (waited < 0 && errno == EINTR);
  run.wall_ms =
      std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
  if (waited != pid) {
    run.error = command[0] + ": wait4: " + std::strerror(errno);
    return run;
  }
  run.started = true;
  run.exit_status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  run.peak_bytes = static_cast<double>(usage.ru_maxrss) * 1024.0;  // kilobytes on Linux
  if (!WIFEXITED(status)) run.error = command[0] + " ended by a signal";
  return run;
}

}  // namespace tx::bench
