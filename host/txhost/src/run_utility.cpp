#include "run_utility.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "project_commands.h"
#include "project_tree.h"
#include "rename_catalogue.h"
#include "tx/host/txk_prj.h"
#include "tx/utility.h"
#include "tx_host/dialog/command_source.h"
#include "tx_host/dialog/modal_dialog_view.h"
#include "tx_host/txhost/listing_limit.h"
#include "tx_host/txhost/saved_names.h"
#include "tx_host/txhost/step_timer.h"
#ifdef _WIN32
#include "tx_host/gui/window_surface.h"
#endif
#include "tx_host/msgs.h"
#include "tx_host/project.h"
#include "tx_host/services/service_registry.h"
#include "tx_host/services/utf.h"

namespace tx::host {
namespace {

constexpr int kDone = 0;
constexpr int kCannotRun = 1;
constexpr int kScriptError = 3;

// The utility txhost runs.
constexpr std::u16string_view kUtility = u"txk_project_rename";

void print(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
  std::fflush(stream);
}

// The script, or standard input: a person at a terminal is prompted and may make mistakes.
std::unique_ptr<dialog::command_source> open_commands(const txhost_options& options, std::FILE* out,
                                                      std::string& error) {
  if (!options.script.empty()) return dialog::load_script(options.script, error);
  std::FILE* prompt = dialog::is_terminal(stdin) ? out : nullptr;
  return std::make_unique<dialog::stream_source>("<stdin>", stdin, prompt);
}

// The dialog view prints every warning after the command that caused it: the warning box's own
// echo to stderr is off while the utility runs.
class warning_echo_off {
 public:
  warning_echo_off() noexcept : was_(tx_host_msgs_echo()) { tx_host_msgs_set_echo(false); }
  warning_echo_off(const warning_echo_off&) = delete;
  warning_echo_off& operator=(const warning_echo_off&) = delete;
  ~warning_echo_off() { tx_host_msgs_set_echo(was_); }

 private:
  bool was_;
};

}  // namespace

void report_load_failure(const plugin_loader& loader, const std::string& path, std::FILE* err) {
  if (loader.error() == load_error::not_a_plugin) {
    print(err, "txhost: " + path + " is " + loader.error_message() + "\n");
  } else {
    print(err, "txhost: cannot load " + path + ": " + loader.error_message() + "\n");
  }
}

int run_utility(const txhost_options& options, std::FILE* out, std::FILE* err) {
  std::string error;
  const std::unique_ptr<dialog::command_source> commands = open_commands(options, out, error);
  if (commands == nullptr) {
    print(err, "txhost: " + error + "\n");
    return kScriptError;
  }
  std::FILE* const timings = options.timings ? err : nullptr;
  const step_timer opening(timings);
  if (!tx_host_project_load(options.run_project.c_str())) {
    print(err, "txhost: " + std::string(tx_host_project_error()) + "\n");
    return kCannotRun;
  }
  opening.report("opening " + options.run_project);
  print_project(tx_prj_get_instance(), out, listed_lines(options.all));

  // Declared in this order so that the plug-in is unloaded first: it may keep the registry's
  // and the view's pairs until then.
  const warning_echo_off quiet;
  catalogue_localizer localizer(rename_strings(), rename_bitmaps(), options.language_offset);
  service_registry registry;
  if (!options.no_localizer) registry.offer_localizer(localizer.pair());
  project_commands host;
  dialog::modal_dialog_view view(*commands, out, options.language_offset);
  view.set_host_commands(&host);
  view.set_hostile(options.hostile);
#ifdef _WIN32
  if (options.gui) {
    gui::start_common_controls();
    const gui::window_options shown{options.script.empty(), options.screenshots};
    view.set_surface_factory(
        [shown](tx_custom_pointer docker, tx_custom_pointer buttons, std::int32_t language) {
          return gui::make_window_surface(docker, buttons, language, shown);
        });
  }
#endif
  plugin_loader loader(registry);
  if (!loader.load(options.run_plugin)) {
    report_load_failure(loader, options.run_plugin, err);
    return kCannotRun;
  }
  view.offer_to(loader.sink());
  const std::vector<utility_command> utilities = loader.utilities();
  const auto utility = std::find_if(utilities.begin(), utilities.end(),
                                    [](const utility_command& u) { return u.id == kUtility; });
  if (utility == utilities.end()) {
    view.withdraw();
    print(err, "txhost: " + options.run_plugin + " has no utility " + to_utf8(kUtility) + "\n");
    return kCannotRun;
  }
  // The utility runs once, and again for every `reopen` that follows a closed dialog: the same
  // plug-in on the same project in memory, as a user invoking the command twice.
  bool again = true;
  while (again) {
    if (!call(utility->command, &tx_utility_interface_4::is_available)) {
      view.withdraw();
      print(err, "txhost: the utility " + to_utf8(kUtility) + " is not available\n");
      return kCannotRun;
    }
    call(utility->command, &tx_utility_interface_4::run);
    view.print_new_warnings();
    if (view.failed()) {
      error = view.error();
      break;
    }
    const dialog::after_dialog next = dialog::next_after_dialog(*commands, view.shown() > 0);
    error = next.error;
    again = next.reopen;
    if (again) print(out, "> reopen\n");
  }
  view.withdraw();
  loader.unload();

  if (!error.empty()) {
    print(err, "txhost: " + error + "\n");
    print(err, "txhost: nothing was saved: " + options.run_project + " is left as it was\n");
    return kScriptError;
  }
  const saving_report report{out, err, listed_lines(options.all), timings};
  return save_written_names(options.run_project, report) ? kDone : kCannotRun;
}

}  // namespace tx::host
