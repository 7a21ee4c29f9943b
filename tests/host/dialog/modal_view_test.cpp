// The modal dialog view: the loop over a script's commands, what it prints, how the end of the
// commands and a script error close the dialog, the views it lends the elements, and standard
// input read by a person or a pipe.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

#include "test_dialog.h"
#include "tx/modal_dialog.h"
#include "tx_host/dialog/modal_dialog_view.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/msgs.h"

namespace tx::test {
namespace {

using host::dialog::command;
using host::dialog::modal_dialog_view;
using host::dialog::parse_script;
using host::dialog::script_source;
using host::dialog::stream_source;

// A temporary file: what the view printed, or what a person typed.
class temp_file {
 public:
  temp_file() : file_(std::tmpfile()) {}
  ~temp_file() { std::fclose(file_); }
  std::FILE* get() const noexcept { return file_; }
  std::string text() const {
    std::rewind(file_);
    std::string all;
    for (int c = std::fgetc(file_); c != EOF; c = std::fgetc(file_)) all += static_cast<char>(c);
    return all;
  }
  void write(std::string_view text) const {
    std::fwrite(text.data(), 1, text.size(), file_);
    std::rewind(file_);
  }

 private:
  std::FILE* file_;
};

script_source script(std::string_view text) {
  return script_source("run.txt", parse_script(text).commands);
}

std::int32_t show(modal_dialog_view& view, test_dialog& d) {
  const tx_custom_pointer v = view.pair();
  return static_cast<const tx_modal_dialog_view_interface_101*>(v.table)->show(
      v.object, d.frame.pointer(), d.buttons.pointer());
}

TEST(ModalDialogView, RunsTheScriptUntilACommandClosesTheDialog) {
  tx_host_msgs_clear();
  script_source commands = script("accept\nrename Дороги Улицы # by hand\naccept\nprint\n");
  temp_file out;
  modal_dialog_view view(commands, out.get(), 0);
  test_dialog d;
  EXPECT_EQ(show(view, d), 0);
  EXPECT_EQ(d.accepted, 1);
  EXPECT_FALSE(view.failed());
  EXPECT_EQ(out.text(),
            "> accept\n"
            "! Предупреждение: Не заданы новые имена\n"
            "> rename Дороги Улицы\n"
            "> accept\n");
  EXPECT_EQ(view.shown(), 1u);
  EXPECT_EQ(host::dialog::next_after_dialog(commands, true).error,
            "run.txt:4: the dialog is already closed: only reopen can follow");
  tx_host_msgs_clear();
}

TEST(ModalDialogView, PrintShowsTheDialogWhereTheScriptAsksForIt) {
  script_source commands = script("tick Дороги\nprint\nclose\n");
  temp_file out;
  modal_dialog_view view(commands, out.get(), 0);
  test_dialog d;
  EXPECT_EQ(show(view, d), 1);
  const std::string printed = out.text();
  const std::string dialog = host::dialog::render_dialog(d.frame.pointer(), d.buttons.pointer(),
                                                         host::dialog::vocabulary_for(0));
  EXPECT_EQ(printed, "> tick Дороги\n> print\n" + dialog + "> close\n");
  EXPECT_NE(dialog.find("[x] Дороги"), std::string::npos);
}

TEST(ModalDialogView, TheEndOfTheCommandsClosesTheDialogWithTheCloseBox) {
  script_source commands = script("rename Дороги Улицы\n");
  temp_file out;
  modal_dialog_view view(commands, out.get(), 0);
  test_dialog d;
  EXPECT_EQ(show(view, d), -1);
  EXPECT_EQ(d.accepted, 0);
  EXPECT_FALSE(view.failed());
  EXPECT_EQ(out.text(), "> rename Дороги Улицы\n> closebox  # the commands ended\n");
  EXPECT_EQ(host::dialog::next_after_dialog(commands, true).error, "");
}

TEST(ModalDialogView, AScriptErrorClosesTheDialogUnacceptedAndEveryLaterOne) {
  script_source commands = script("rename Дороги Улицы\n\ntick Озёра\naccept\n");
  temp_file out;
  modal_dialog_view view(commands, out.get(), 0);
  test_dialog d;
  EXPECT_EQ(show(view, d), -1);
  EXPECT_EQ(d.accepted, 0);
  EXPECT_TRUE(view.failed());
  EXPECT_EQ(view.error(), "run.txt:3: no row \"Озёра\"");
  test_dialog again;
  EXPECT_EQ(show(view, again), -1);  // closes at once: the accept is not read
  EXPECT_EQ(again.accepted, 0);
  EXPECT_EQ(out.text(), "> rename Дороги Улицы\n> tick Озёра\n");
  EXPECT_EQ(host::dialog::next_after_dialog(commands, true).error,
            "run.txt:4: the dialog is already closed: only reopen can follow");
}

TEST(ModalDialogView, EveryElementHoldsTheHostsViewWhileTheDialogIsShown) {
  script_source commands = script("click test_expand_tool\naccept\nrename Дороги x\naccept\n");
  temp_file out;
  modal_dialog_view view(commands, out.get(), 0);
  test_dialog d;
  test_widget& w = d.widget();
  const auto all_views = [&w] {
    return std::vector<bool>{present(w.find.view()),   present(w.case_mode.view()),
                             present(w.panels.view()), present(w.group.view()),
                             present(w.view.view()),   present(w.names.view()),
                             present(w.checks.view()), present(w.bar.tools().undo.view()),
                             present(w.bar.view()),    present(w.root.view())};
  };
  std::vector<bool> while_shown;
  w.bar.tools().expand.set_action([&] { while_shown = all_views(); });
  EXPECT_EQ(show(view, d), 0);
  EXPECT_EQ(while_shown, std::vector<bool>(10, true));
  EXPECT_EQ(all_views(), std::vector<bool>(10, false));
  EXPECT_FALSE(present(d.frame.host_reference()));
  EXPECT_FALSE(present(d.buttons.host_reference()));
}

TEST(ModalDialogView, APersonIsPromptedShownTheDialogAndToldOfMistakes) {
  temp_file in;
  in.write("frob\n\nrename Дороги Улицы\naccept\n");
  temp_file out;
  stream_source commands("<stdin>", in.get(), out.get());
  modal_dialog_view view(commands, out.get(), 0);
  test_dialog d;
  const std::string opened = host::dialog::render_dialog(d.frame.pointer(), d.buttons.pointer(),
                                                         host::dialog::vocabulary_for(0));
  EXPECT_EQ(show(view, d), 0);
  EXPECT_FALSE(view.failed());
  // The rename changed the outline's cells, but the test outline does not tell its view of it.
  EXPECT_EQ(out.text(), opened +
                            "txhost> error: unknown command 'frob' (help lists them)\n"
                            "txhost> txhost> txhost> ");
  EXPECT_EQ(host::dialog::next_after_dialog(commands, true).error, "");
}

TEST(ModalDialogView, APipedScriptStopsAtItsFirstMistake) {
  temp_file in;
  in.write("tick Дороги\r\nset 1 \"open\naccept\n");
  temp_file out;
  stream_source commands("<stdin>", in.get(), nullptr);
  modal_dialog_view view(commands, out.get(), 50000);
  test_dialog d;
  EXPECT_EQ(show(view, d), -1);
  EXPECT_EQ(view.error(), "<stdin>:2: a quoted argument is not closed");
  EXPECT_EQ(out.text(), "> tick Дороги\n");
  EXPECT_TRUE(d.widget().roads.checked);
}

TEST(ModalDialogView, ALeftOverCommandWithoutAnyDialogIsAnError) {
  script_source commands = script("# nothing shown\nprint\n");
  EXPECT_EQ(host::dialog::next_after_dialog(commands, false).error,
            "run.txt:2: no dialog was shown for this command");
}

}  // namespace
}  // namespace tx::test
