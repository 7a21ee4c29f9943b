// The host's modal dialog view (tx_modal_dialog_view_interface_101): shows a plug-in's dialog as
// text and runs the modal loop on commands from a script or a person.
//
// show(content, buttons) hands every element of the dialog the host's view, then reads commands
// until one closes the dialog: a button whose press answers that it may close, or the close box.
// The end of the commands closes the dialog as the close box does. A command that cannot be
// done is a script error: the dialog is closed with the close box, not accepted, and every later
// dialog closes at once; a person at a terminal is told and goes on instead. Warnings the
// plug-in shows through the host's warning box are printed after the command that caused them.
// Commands for the host (`delete`) go to the host commands it was given; with the hostile pass
// switched on, each dialog is first handed null pairs and null texts (hostile_pass.h).
//
//   tx::host::dialog::modal_dialog_view view(commands, stdout, language_offset);
//   view.offer_to(loader.sink());   // after the plug-in published its dialog services
//   ... run the utility ...
//   view.withdraw();                // before the plug-in is unloaded
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "tx_host/dialog/command_source.h"
#include "tx_host/dialog/dialog_surface.h"
#include "tx_host/dialog/host_commands.h"
#include "tx_host/services/interface_object.h"
#include "tx_host/services/publish_sink.h"

namespace tx::host::dialog {

class modal_dialog_view final : public interface_object {
 public:
  // `commands` and `out` are borrowed and must outlive the view's use. Warnings shown before
  // the view exists are not its to print.
  modal_dialog_view(command_source& commands, std::FILE* out, std::int32_t language_offset);

  tx_custom_pointer pair() noexcept;

  // Commands for the host (`delete`) go to `host`, borrowed while dialogs are shown; without
  // it they are refused.
  void set_host_commands(host_commands* host) noexcept { host_ = host; }
  // Each dialog shown from now on first goes through the hostile pass (hostile_pass.h), whose
  // report is printed before its first command.
  void set_hostile(bool hostile) noexcept { hostile_ = hostile; }
  // Each dialog shown from now on is shown by what `make` makes (by default, as text).
  void set_surface_factory(surface_factory make) { make_surface_ = std::move(make); }

  // Visits the dialogs of every modal dialog service `sink` holds and gives each this view.
  void offer_to(const publish_sink& sink);
  // Takes this view back from every dialog it was given to.
  void withdraw() noexcept;
  // The dialogs holding this view, by identifier (UTF-8).
  const std::vector<std::string>& dialog_ids() const noexcept { return dialog_ids_; }

  // Shows the dialog and runs the modal loop; the index of the button that closed it, or -1.
  std::int32_t show(tx_custom_pointer content, tx_custom_pointer buttons);

  // Prints the warnings shown since the last call (since the view was made, the first time).
  void print_new_warnings();

  // A script error stopped a dialog; error() says where and why ("FILE:LINE: why").
  bool failed() const noexcept { return !error_.empty(); }
  const std::string& error() const noexcept { return error_; }
  // How many dialogs were shown.
  std::size_t shown() const noexcept { return shown_; }

 private:
  std::span<const interface_entry> interfaces() const noexcept override;
  std::int32_t run_loop(tx_custom_pointer content, tx_custom_pointer buttons);
  // Runs the hostile pass over a dialog about to be driven and prints its report, with a line
  // when the pass changed what the dialog shows.
  void provoke(tx_custom_pointer docker, tx_custom_pointer buttons);
  command_outcome run_for_host(const command& c);
  void print(std::string_view text);

  command_source& commands_;
  std::FILE* out_;
  std::int32_t language_;
  host_commands* host_ = nullptr;
  bool hostile_ = false;
  surface_factory make_surface_;
  std::vector<tx_custom_pointer> dialogs_;
  std::vector<std::string> dialog_ids_;
  std::size_t warnings_printed_;
  std::size_t shown_ = 0;
  std::string error_;
};

}  // namespace tx::host::dialog
