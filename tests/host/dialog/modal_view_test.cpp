// The modal dialog view reading its commands from a stream: a person is prompted, shown the
// dialog and told of mistakes without ending the session; a piped script stops at its first
// mistake. And what may follow a closed dialog in a script.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "toolkit/docker.h"
#include "tx/modal_dialog.h"
#include "tx_host/dialog/modal_dialog_view.h"
#include "tx_host/dialog/text_renderer.h"

namespace tx::test {
namespace {

using host::dialog::modal_dialog_view;
using host::dialog::stream_source;

// A temporary file: what the view printed, or what a person typed.
class temp_file {
 public:
  temp_file() : file_(std::tmpfile()) {}
  temp_file(const temp_file&) = delete;
  temp_file& operator=(const temp_file&) = delete;
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

// A dialog frame without content or buttons: the stream's handling does not depend on them.
struct empty_widget {
  custom_pointer layout() { return {}; }
};
using empty_dialog = toolkit::docker<empty_widget>;

std::int32_t show(modal_dialog_view& view, empty_dialog& d) {
  const tx_custom_pointer v = view.pair();
  return static_cast<const tx_modal_dialog_view_interface_101*>(v.table)->show(
      v.object, d.pointer(), custom_pointer{});
}

std::string rendered(empty_dialog& d) {
  return host::dialog::render_dialog(d.pointer(), custom_pointer{},
                                     host::dialog::vocabulary_for(0));
}

TEST(ModalDialogView, APersonIsPromptedShownTheDialogAndToldOfMistakes) {
  temp_file in;
  in.write("frob\n\nprint\n");
  temp_file out;
  stream_source commands("<stdin>", in.get(), out.get());
  modal_dialog_view view(commands, out.get(), 0);
  empty_dialog d(10);
  const std::string opened = rendered(d);
  EXPECT_EQ(show(view, d), -1);  // the end of the input closes it with the close box
  EXPECT_FALSE(view.failed());
  EXPECT_EQ(out.text(), opened +
                            "txhost> error: unknown command 'frob' (help lists them)\n"
                            "txhost> txhost> " +
                            opened + "txhost> ");
  EXPECT_EQ(host::dialog::next_after_dialog(commands, true).error, "");
}

TEST(ModalDialogView, APipedScriptStopsAtItsFirstMistake) {
  temp_file in;
  in.write("print\r\nset 1 \"open\nprint\n");
  temp_file out;
  stream_source commands("<stdin>", in.get(), nullptr);
  modal_dialog_view view(commands, out.get(), 0);
  empty_dialog d(10);
  EXPECT_EQ(show(view, d), -1);
  EXPECT_TRUE(view.failed());
  EXPECT_EQ(view.error(), "<stdin>:2: a quoted argument is not closed");
  EXPECT_EQ(out.text(), "> print\n" + rendered(d));
}

TEST(AfterTheDialog, OnlyReopenFollowsAClosedDialogAndNothingFollowsAnUnshownOne) {
  using host::dialog::next_after_dialog;
  using host::dialog::parse_script;
  using host::dialog::script_source;
  script_source commands("run.txt", parse_script("reopen\n# again\nreopen\nprint\n").commands);
  EXPECT_TRUE(next_after_dialog(commands, true).reopen);
  EXPECT_TRUE(next_after_dialog(commands, true).reopen);
  const host::dialog::after_dialog rest = next_after_dialog(commands, true);
  EXPECT_FALSE(rest.reopen);
  EXPECT_EQ(rest.error, "run.txt:4: the dialog is already closed: only reopen can follow");

  script_source unshown("run.txt", parse_script("# nothing shown\nreopen\n").commands);
  const host::dialog::after_dialog refused = next_after_dialog(unshown, false);
  EXPECT_FALSE(refused.reopen);
  EXPECT_EQ(refused.error, "run.txt:2: no dialog was shown for this command");
}

}  // namespace
}  // namespace tx::test
