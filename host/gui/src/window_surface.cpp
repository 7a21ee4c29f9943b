#include "tx_host/gui/window_surface.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "dialog_window.h"
#include "field_controls.h"
#include "focus_report.h"
#include "input_delivery.h"
#include "key_input.h"
#include "message_presenter.h"
#include "native.h"
#include "outline_control.h"
#include "random_input.h"
#include "screenshot.h"
#include "toolbar_control.h"
#include "tx_host/dialog/key_names.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/vocabulary.h"

namespace tx::host::gui {
namespace {

using dialog::command;
using dialog::command_outcome;
using dialog::done;
using dialog::failure;
using dialog::lookup;
using dialog::outcome_of;
using dialog::verb;

// A script's commands sent to the window's controls as a person's input would be.
class window_surface final : public dialog::dialog_surface, private dialog::dialog_actions {
 public:
  window_surface(tx_custom_pointer docker, tx_custom_pointer buttons, std::int32_t language,
                 window_options options)
      : options_(std::move(options)),
        // The dialog has no owner: txhost has no window of its own to put it over (its console
        // window is another process's, which the dialog must not disable).
        window_(docker, buttons, language, nullptr),
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
  // keys, type, focus, random-input: the window's keyboard and mouse (key_input.h).
  command_outcome keyboard(const command& c) override;

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
  std::optional<dialog::list_facts> facts;
  if (selector != nullptr) facts = dialog::list_facts{selector->items(), selector->enabled()};
  const lookup<std::size_t> item = dialog::find_operation(facts, operation);
  if (!item) return failure(item.refused());
  selector->choose(static_cast<int>(*item));
  return done();
}

command_outcome window_surface::set_field(const std::string& name, const std::string& value) {
  const std::vector<field_control*> fields = window_.fields();
  std::vector<dialog::field_facts> facts;
  for (const field_control* f : fields) facts.push_back({f->caption(), f->enabled()});
  const lookup<std::size_t> found = dialog::find_field(facts, name);
  if (!found) return failure(found.refused());
  if (const std::optional<dialog::refusal> refused = fields[*found]->enter(value, name)) {
    return failure(*refused);
  }
  return done();
}

command_outcome window_surface::row_command(const command& c) {
  outline_control* outline = window_.outline();
  if (outline == nullptr) return failure({dialog::refusal_reason::no_outline});
  const std::string& row = c.arguments.at(0);
  switch (c.what) {
    case verb::tick:
    case verb::untick:
      return outcome_of(outline->tick(row, c.what == verb::tick));
    case verb::select:
    case verb::deselect:
      return outcome_of(outline->select(row, c.what == verb::select));
    case verb::expand:
    case verb::collapse:
      return outcome_of(outline->expand(row, c.what == verb::expand));
    default:
      return outcome_of(outline->rename(row, c.arguments.at(1), c.what == verb::rename));
  }
}

command_outcome window_surface::click(const std::string& tool) {
  // Every toolbar's tools in one list, each with its toolbar and its place there.
  std::vector<dialog::tool_values> tools;
  std::vector<std::pair<toolbar_control*, std::size_t>> places;
  for (toolbar_control* toolbar : window_.toolbars()) {
    std::vector<dialog::tool_values> own = toolbar->tools();
    for (std::size_t i = 0; i < own.size(); ++i) places.emplace_back(toolbar, i);
    std::move(own.begin(), own.end(), std::back_inserter(tools));
  }
  const lookup<std::size_t> found = dialog::find_tool(tools, tool);
  if (!found) return failure(found.refused());
  places[*found].first->click(places[*found].second);
  return done();
}

command_outcome window_surface::press(const command& c) {
  if (c.what == verb::closebox) {
    SendMessageW(window_.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    return done();
  }
  const std::vector<dialog_window::button> shown = window_.shown_buttons();
  std::vector<std::string> captions;
  for (const dialog_window::button& b : shown) captions.push_back(b.caption);
  const lookup<std::size_t> found = dialog::find_button(captions, c, window_.language_offset());
  if (!found) return failure(found.refused());
  SendMessageW(shown[*found].window, BM_CLICK, 0, 0);
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

command_outcome window_surface::keyboard(const command& c) {
  if (c.what == verb::focus) return {std::nullopt, describe_focus(window_), {}};
  input_delivery delivery(window_, c.line, std::string(dialog::verb_name(c.what)));
  if (c.what == verb::random_input) {
    const dialog::random_input_arguments numbers = dialog::read_random_input(c.arguments);
    return random_input(window_, delivery, numbers.count, numbers.series);
  }
  // keys and type: one chord, or one character typed, after another, each handled before the
  // next; what follows an input that closed the dialog is not sent.
  std::vector<std::pair<std::vector<INPUT>, std::string>> inputs;
  if (c.what == verb::keys) {
    for (const dialog::key_chord& chord : dialog::parse_keys(c.arguments.at(0)).chords) {
      inputs.emplace_back(chord_events(chord), dialog::key_name(chord));
    }
  } else {
    for (const wchar_t unit : wide(c.arguments.at(0))) {
      inputs.emplace_back(character_events(unit), utf8(std::wstring(1, unit)));
    }
  }
  for (std::size_t i = 0; i < inputs.size() && !window_.closed_with(); ++i) {
    if (auto error = delivery.deliver(std::move(inputs[i].first), i + 1, inputs[i].second)) {
      return failure(*error);
    }
  }
  return done();
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
