#include "tx_host/gui/window_surface.h"

#include <algorithm>

#include "dialog_window.h"
#include "field_controls.h"
#include "message_presenter.h"
#include "native.h"
#include "outline_control.h"
#include "screenshot.h"
#include "toolbar_control.h"
#include "tx_host/dialog/script_values.h"
#include "tx_host/dialog/vocabulary.h"

namespace tx::host::gui {
namespace {

using dialog::command;
using dialog::command_outcome;
using dialog::quoted;
using dialog::verb;

command_outcome failure(std::string error) { return {std::nullopt, {}, std::move(error)}; }
command_outcome done() { return {}; }

// A script's commands sent to the window's controls as a person's input would be.
class window_surface final : public dialog::dialog_surface, private dialog::dialog_actions {
 public:
  window_surface(tx_custom_pointer docker, tx_custom_pointer buttons, std::int32_t language,
                 window_options options)
      : options_(std::move(options)),
        window_(docker, buttons, language, GetConsoleWindow()),
        presenter_(window_.handle(), language, !options_.by_hand) {
    window_.pump();
  }

  command_outcome run(const command& c) override {
    window_.pump();
    command_outcome outcome = dispatch(*this, c);
    window_.pump();
    if (!outcome.closed_with && window_.closed_with()) outcome.closed_with = window_.closed_with();
    return outcome;
  }
  std::string render() override {
    window_.pump();
    return window_.render();
  }
  void press_close_box() override {
    if (window_.closed_with()) return;
    SendMessageW(window_.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    window_.pump();
  }
  void settle() override {
    window_.attach_views();
    window_.pump();
  }
  bool take_changed() override { return window_.take_changed(); }
  std::optional<std::int32_t> run_by_hand() override {
    if (!options_.by_hand) return std::nullopt;
    return window_.run_modal();
  }

 private:
  command_outcome choose_operation(const std::string& operation) override;
  command_outcome set_field(const std::string& name, const std::string& value) override;
  command_outcome row_command(const command& c) override;
  command_outcome click(const std::string& tool) override;
  command_outcome press(const command& c) override;
  std::string tools() override;
  command_outcome screenshot(const std::string& file) override;

  window_options options_;
  dialog_window window_;
  message_presenter presenter_;
};

std::string window_surface::tools() {
  std::string listing;
  for (const toolbar_control* toolbar : window_.toolbars()) listing += toolbar->describe();
  return listing;
}

command_outcome window_surface::choose_operation(const std::string& operation) {
  dropdown_control* selector = window_.operation_selector();
  if (selector == nullptr) return failure("the dialog has no operation selector");
  if (!selector->enabled()) return failure("the operation selector is disabled");
  const std::vector<std::string> items = selector->items();
  const auto named = std::find(items.begin(), items.end(), operation);
  int index = named != items.end() ? static_cast<int>(named - items.begin()) : -1;
  if (index < 0) {
    const std::optional<std::size_t> n = dialog::position(operation);
    if (n && *n <= items.size()) index = static_cast<int>(*n - 1);
  }
  if (index < 0) return failure("no operation " + quoted(operation));
  selector->choose(index);
  return done();
}

command_outcome window_surface::set_field(const std::string& name, const std::string& value) {
  const std::vector<field_control*> fields = window_.fields();
  field_control* target = nullptr;
  if (const std::optional<std::size_t> n = dialog::position(name)) {
    if (*n > fields.size()) return failure("no field " + std::to_string(*n));
    target = fields[*n - 1];
  } else {
    for (field_control* f : fields) {
      if (dialog::bare(f->caption()) != dialog::bare(name)) continue;
      if (target != nullptr) {
        return failure("more than one field is captioned " + quoted(name) + ": give its number");
      }
      target = f;
    }
    if (target == nullptr) return failure("no field " + quoted(name));
  }
  if (!target->enabled()) return failure("field " + quoted(name) + " is disabled");
  return failure(target->enter(value, name));
}

command_outcome window_surface::row_command(const command& c) {
  outline_control* outline = window_.outline();
  if (outline == nullptr) return failure("the dialog has no outline");
  const std::string& row = c.arguments.at(0);
  switch (c.what) {
    case verb::tick:
    case verb::untick:
      return failure(outline->tick(row, c.what == verb::tick));
    case verb::select:
    case verb::deselect:
      return failure(outline->select(row, c.what == verb::select));
    case verb::expand:
    case verb::collapse:
      return failure(outline->expand(row, c.what == verb::expand));
    default:
      return failure(outline->rename(row, c.arguments.at(1), c.what == verb::rename));
  }
}

command_outcome window_surface::click(const std::string& tool) {
  std::string error = "no tool " + quoted(tool);
  for (toolbar_control* toolbar : window_.toolbars()) {
    error = toolbar->click(tool);
    if (error.empty() || !error.starts_with("no tool ")) break;
  }
  return failure(std::move(error));
}

command_outcome window_surface::press(const command& c) {
  if (c.what == verb::closebox) {
    SendMessageW(window_.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    return done();
  }
  const std::vector<dialog_window::button> shown = window_.shown_buttons();
  const dialog_window::button* target = nullptr;
  if (c.what == verb::press) {
    const std::string& wanted = c.arguments.at(0);
    for (const dialog_window::button& b : shown) {
      if (b.caption == wanted && target == nullptr) target = &b;
    }
    const std::optional<std::size_t> n = dialog::position(wanted);
    if (target == nullptr && n && *n <= shown.size()) target = &shown[*n - 1];
    if (target == nullptr) return failure("no button " + quoted(wanted));
  } else {
    const dialog::button_role role =
        c.what == verb::accept ? dialog::button_role::accept : dialog::button_role::close;
    for (const dialog_window::button& b : shown) {
      if (dialog::role_of(b.caption, window_.language_offset()) == role && target == nullptr) {
        target = &b;
      }
    }
    if (target == nullptr) {
      return failure(role == dialog::button_role::accept ? "the dialog has no accepting button"
                                                         : "the dialog has no closing button");
    }
  }
  SendMessageW(target->window, BM_CLICK, 0, 0);
  return done();
}

command_outcome window_surface::screenshot(const std::string& file) {
  std::string path = file;
  const bool bare_name = file.find_first_of("/\\:") == std::string::npos;
  if (bare_name && !options_.screenshots.empty()) {
    CreateDirectoryW(wide(options_.screenshots).c_str(), nullptr);
    path = options_.screenshots + "/" + file;
  }
  return failure(save_screenshot(window_.handle(), path));
}

}  // namespace

std::unique_ptr<dialog::dialog_surface> make_window_surface(tx_custom_pointer docker,
                                                            tx_custom_pointer buttons,
                                                            std::int32_t language_offset,
                                                            const window_options& options) {
  return std::make_unique<window_surface>(docker, buttons, language_offset, options);
}

void start_common_controls() {
  INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX),
                                ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES | ICC_PROGRESS_CLASS |
                                    ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES};
  InitCommonControlsEx(&controls);
}

}  // namespace tx::host::gui
