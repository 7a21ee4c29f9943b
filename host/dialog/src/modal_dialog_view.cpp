#include "tx_host/dialog/modal_dialog_view.h"

#include "tx/modal_dialog.h"
#include "tx/toolkit/button_box.h"
#include "tx/toolkit/docker.h"
#include "tx_host/dialog/dialog_driver.h"
#include "tx_host/dialog/hostile_pass.h"
#include "tx_host/dialog/vocabulary.h"
#include "tx_host/msgs.h"
#include "tx_host/services/utf.h"

namespace tx::host::dialog {
namespace {

constexpr tx_modal_dialog_view_interface_101 kTable{
    &root_slot,
    [](void* self, tx_custom_pointer content, tx_custom_pointer buttons) noexcept {
      return object_of<modal_dialog_view>(self).show(content, buttons);
    },
};
constexpr interface_entry kInterfaces[]{{TX_MODAL_DIALOG_VIEW_INTERFACE_101, &kTable}};

// The host's tx_modal_dialog_visitor_interface_101: keeps the dialogs a service names.
class dialog_collector final : public interface_object {
 public:
  tx_custom_pointer pair() noexcept { return {&table, object_half()}; }
  std::vector<std::pair<std::string, tx_custom_pointer>> dialogs;

 private:
  static void visit(void* self, const char16_t* id, tx_custom_pointer dialog) noexcept {
    try {
      if (present(dialog)) {
        object_of<dialog_collector>(self).dialogs.emplace_back(to_utf8(id != nullptr ? id : u""),
                                                               dialog);
      }
    } catch (...) {
      // Out of memory: the dialog gets no view and is not shown.
    }
  }
  static constexpr tx_modal_dialog_visitor_interface_101 table{&root_slot, &visit};
  static constexpr interface_entry entries[]{{TX_MODAL_DIALOG_VISITOR_INTERFACE_101, &table}};
  std::span<const interface_entry> interfaces() const noexcept override { return entries; }
};

// Gives the docker and the button box `reference` as the host's counterpart of each.
void set_references(tx_custom_pointer docker, tx_custom_pointer buttons,
                    tx_custom_pointer reference) noexcept {
  call(docker, &tx_docker_interface_92::set_host_reference, reference);
  call(buttons, &tx_button_box_interface_2::set_host_reference, reference);
  call(buttons, &tx_button_box_interface_2::set_second_host_reference, reference);
}

}  // namespace

modal_dialog_view::modal_dialog_view(command_source& commands, std::FILE* out,
                                     std::int32_t language_offset)
    : commands_(commands),
      out_(out),
      language_(language_offset),
      warnings_printed_(tx_host_msgs_warning_count()) {}

tx_custom_pointer modal_dialog_view::pair() noexcept { return {&kTable, object_half()}; }

void modal_dialog_view::offer_to(const publish_sink& sink) {
  dialog_collector collector;
  for (const tx_custom_pointer service : sink.dialog_services()) {
    call(service, &tx_modal_dialog_service_interface_102::visit_dialogs, collector.pair());
  }
  for (auto& [id, dialog] : collector.dialogs) {
    call(dialog, &tx_modal_dialog_interface_101::set_view, pair());
    dialogs_.push_back(dialog);
    dialog_ids_.push_back(std::move(id));
  }
}

void modal_dialog_view::withdraw() noexcept {
  for (const tx_custom_pointer dialog : dialogs_) {
    call(dialog, &tx_modal_dialog_interface_101::set_view, tx_custom_pointer{});
  }
  dialogs_.clear();
  dialog_ids_.clear();
}

std::int32_t modal_dialog_view::show(tx_custom_pointer content, tx_custom_pointer buttons) {
  const tx_custom_pointer docker = host::query(content, TX_DOCKER_INTERFACE_92);
  const tx_custom_pointer box = host::query(buttons, TX_BUTTON_BOX_INTERFACE_2);
  ++shown_;
  if (hostile_ && !failed()) provoke(docker, box);
  set_references(docker, box, pair());
  std::int32_t closed_with = -1;
  try {
    closed_with = run_loop(docker, box);
  } catch (...) {
    // Out of memory in the host: the dialog closes unaccepted, as after a script error.
    if (error_.empty()) error_ = commands_.name() + ": the host ran out of memory";
    call(box, &tx_button_box_interface_2::press, -1);
  }
  set_references(docker, box, tx_custom_pointer{});
  return closed_with;
}

std::int32_t modal_dialog_view::run_loop(tx_custom_pointer docker, tx_custom_pointer buttons) {
  // A script already stopped: this dialog closes at once.
  if (failed()) {
    dialog_driver(docker, buttons, language_).press_close_box();
    return -1;
  }
  const std::unique_ptr<dialog_surface> surface =
      make_surface_ ? make_surface_(docker, buttons, language_)
                    : std::make_unique<text_surface>(docker, buttons, language_);
  print_new_warnings();
  if (const std::optional<std::int32_t> closed = surface->run_by_hand()) return *closed;
  const bool person = commands_.interactive();
  if (person) print(surface->render());
  std::int32_t closed_with = -1;
  while (true) {
    const parsed_line next = commands_.next();
    std::string error;
    if (next.error) {
      error = next.error->message;
    } else if (!next.parsed) {
      // The end of the commands: the frame's close box, whatever the box answers.
      if (!person) print("> closebox  # the commands ended\n");
      surface->press_close_box();
      break;
    } else {
      if (!person) print("> " + next.parsed->text + "\n");
      const command_outcome outcome = host_commands::for_host(next.parsed->what)
                                          ? run_for_host(*next.parsed)
                                          : surface->run(*next.parsed);
      print(outcome.output);
      print_new_warnings();
      error = outcome.error;
      if (outcome.closed_with) {
        closed_with = *outcome.closed_with;
        break;
      }
      surface->settle();
    }
    if (!error.empty()) {
      const std::size_t line = next.error ? next.error->line : next.parsed->line;
      if (person) {
        print("error: " + error + "\n");
        continue;
      }
      error_ = commands_.name() + ":" + std::to_string(line) + ": " + error;
      surface->press_close_box();
      break;
    }
    if (person && surface->take_changed()) print(surface->render());
  }
  return closed_with;
}

void modal_dialog_view::provoke(tx_custom_pointer docker, tx_custom_pointer buttons) {
  dialog_driver driver(docker, buttons, language_);
  const std::string before = driver.render();
  std::string report = describe(run_hostile_pass(docker, buttons));
  if (driver.render() != before) report += "hostile: the dialog changed\n";
  print(report);
}

command_outcome modal_dialog_view::run_for_host(const command& c) {
  if (host_ == nullptr) return {std::nullopt, {}, "this host deletes no project elements"};
  return host_->run(c);
}

void modal_dialog_view::print_new_warnings() {
  const std::size_t count = tx_host_msgs_warning_count();
  if (count < warnings_printed_) warnings_printed_ = 0;  // the record was cleared meanwhile
  const vocabulary& words = vocabulary_for(language_);
  for (; warnings_printed_ < count; ++warnings_printed_) {
    const char16_t* text = tx_host_msgs_warning(warnings_printed_);
    print("! " + std::string(words.warning) + ": " + to_utf8(text != nullptr ? text : u"") + "\n");
  }
}

void modal_dialog_view::print(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), out_);
  std::fflush(out_);
}

std::span<const interface_entry> modal_dialog_view::interfaces() const noexcept {
  return kInterfaces;
}

}  // namespace tx::host::dialog
