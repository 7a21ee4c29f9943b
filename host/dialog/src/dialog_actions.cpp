#include "tx_host/dialog/dialog_actions.h"

namespace tx::host::dialog {

command_outcome failure(std::string error) { return {std::nullopt, {}, std::move(error)}; }

command_outcome failure(const refusal& why) { return failure(message(why)); }

command_outcome dialog_actions::keyboard(const command& c) {
  std::string error(verb_name(c.what));
  return failure(error.append(" needs the window's keyboard and mouse (txhost --gui)"));
}

command_outcome dispatch(dialog_actions& actions, const command& c) {
  switch (c.what) {
    case verb::print:
      return {std::nullopt, actions.render(), {}};
    case verb::help:
      return {std::nullopt, command_summary(), {}};
    case verb::op:
      return actions.choose_operation(c.arguments.at(0));
    case verb::set:
      return actions.set_field(c.arguments.at(0), c.arguments.at(1));
    case verb::tick:
    case verb::untick:
    case verb::select:
    case verb::deselect:
    case verb::expand:
    case verb::collapse:
    case verb::rename:
    case verb::escape:
      return actions.row_command(c);
    case verb::click:
      return actions.click(c.arguments.at(0));
    case verb::accept:
    case verb::close:
    case verb::press:
    case verb::closebox:
      return actions.press(c);
    case verb::tools:
      return {std::nullopt, actions.tools(), {}};
    case verb::screenshot:
      return actions.screenshot(c.arguments.at(0));
    case verb::remove:
      return {std::nullopt, {}, "this host deletes no project elements"};
    case verb::reopen:
      return {std::nullopt, {}, "reopen runs the utility again once its dialog has closed"};
    case verb::keys:
    case verb::type:
    case verb::focus:
    case verb::random_input:
      return actions.keyboard(c);
  }
  return {std::nullopt, {}, "unknown command"};
}

}  // namespace tx::host::dialog
