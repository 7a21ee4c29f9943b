// The modal dialog view reading its commands from a stream: a person is prompted, shown the
// dialog and told of mistakes without ending the session; a piped script stops at its first
// mistake. And what may follow a dialog never shown.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "toolkit/docker.h"
#include "tx/modal_dialog.h"
#include "tx_host/dialog/modal_dialog_view.h"
#include "tx_host/dialog/text_renderer.h"

namespace tx::test {
namespace {

using host::dialog::modal_dialog_view;
using host::dialog::stream_source;

using file_pointer = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// A temporary file holding `text` (what a person typed), read from its start; or, made empty,
// where the view prints.
file_pointer temp_file(std::string_view text = "") {
  file_pointer file(std::tmpfile(), &std::fclose);
  std::fwrite(text.data(), 1, text.size(), file.get());
  std::rewind(file.get());
  return file;
}

std::string written(std::FILE* file) {
  std::rewind(file);
  std::string all;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) all += static_cast<char>(c);
  return all;
}

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
  const file_pointer in = temp_file("frob\n\nprint\n");
  const file_pointer out = temp_file();
  stream_source commands("<stdin>", in.get(), out.get());
  modal_dialog_view view(commands, out.get(), 0);
  empty_dialog d(10);
  const std::string opened = rendered(d);
  EXPECT_EQ(show(view, d), -1);  // the end of the input closes it with the close box
  EXPECT_FALSE(view.failed());
  EXPECT_EQ(written(out.get()), opened +
                                    "txhost> error: unknown command 'frob' (help lists them)\n"
                                    "txhost> txhost> " +
                                    opened + "txhost> ");
  EXPECT_EQ(host::dialog::next_after_dialog(commands, true).error, "");
}

TEST(ModalDialogView, APipedScriptStopsAtItsFirstMistake) {
  const file_pointer in = temp_file("print\r\nset 1 \"open\nprint\n");
  const file_pointer out = temp_file();
  stream_source commands("<stdin>", in.get(), nullptr);
  modal_dialog_view view(commands, out.get(), 0);
  empty_dialog d(10);
  EXPECT_EQ(show(view, d), -1);
  EXPECT_TRUE(view.failed());
  EXPECT_EQ(view.error(), "<stdin>:2: a quoted argument is not closed");
  EXPECT_EQ(written(out.get()), "> print\n" + rendered(d));
}

// After a closed dialog only reopen follows (the end-to-end cases reopen and
// command_after_close); after a dialog never shown, nothing does.
TEST(AfterTheDialog, NothingFollowsADialogNeverShown) {
  host::dialog::script_source unshown(
      "run.txt", host::dialog::parse_script("# nothing shown\nreopen\n").commands);
  const host::dialog::after_dialog refused = host::dialog::next_after_dialog(unshown, false);
  EXPECT_FALSE(refused.reopen);
  EXPECT_EQ(refused.error, "run.txt:2: no dialog was shown for this command");
}

}  // namespace
}  // namespace tx::test
