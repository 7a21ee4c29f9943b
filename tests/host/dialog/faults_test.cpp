// The host's means of misbehaving: the hostile pass (every answer to a null pair or a null text
// checked against the neutral one), commands for the host routed past the dialog, reopen after
// a closed dialog, the host's catalogue localizer, and the warning box's echo switch.
#include <gtest/gtest.h>

#include <cstdio>

#include "test_dialog.h"
#include "tx/modal_dialog.h"
#include "tx_host/dialog/element_views.h"
#include "tx_host/dialog/hostile_pass.h"
#include "tx_host/dialog/modal_dialog_view.h"
#include "tx_host/dialog/picture_reader.h"
#include "tx_host/dialog/text_renderer.h"
#include "tx_host/msgs.h"
#include "tx_host/services/catalogue_localizer.h"
#include "tx_host/services/string_collector.h"
#include "tx_host/services/utf.h"

namespace tx::test {
namespace {

using host::dialog::modal_dialog_view;
using host::dialog::parse_script;
using host::dialog::script_source;

std::string rendered(test_dialog& d) {
  return host::dialog::render_dialog(d.frame.pointer(), d.buttons.pointer(),
                                     host::dialog::vocabulary_for(0));
}

TEST(HostilePass, EveryAnswerOfAWellBehavedDialogIsNeutralAndNothingChanges) {
  test_dialog d;
  test_widget& w = d.widget();
  host::dialog::element_views views;
  views.attach(d.frame.pointer());
  const std::string before = rendered(d);

  const host::dialog::hostile_report report =
      host::dialog::run_hostile_pass(d.frame.pointer(), d.buttons.pointer());
  EXPECT_TRUE(report.deviations.empty()) << host::dialog::describe(report);
  EXPECT_EQ(report.rows, 7u);  // every row, those under collapsed rows too
  EXPECT_GT(report.calls, report.elements + report.rows);
  EXPECT_EQ(rendered(d), before);
  EXPECT_FALSE(w.scenes.checked || w.scenes.selected || w.top.checked);
  // Views and host references were taken back, as a host that hands out null pairs does.
  EXPECT_FALSE(present(w.find.view()) || present(w.view.view()) || present(w.checks.view()) ||
               present(w.bar.tools().undo.view()) || present(w.root.view()));
  EXPECT_FALSE(present(d.frame.host_reference()) || present(d.buttons.host_reference()));
  EXPECT_EQ(host::dialog::describe(report),
            "hostile: " + std::to_string(report.elements) + " elements and 7 rows, " +
                std::to_string(report.calls) +
                " calls with null pairs and null texts; every answer neutral\n");
}

// Check boxes that keep the toolkit's default: every box enabled, even a row without content.
struct lax_checks final : toolkit::outline_checks {
  bool checked(custom_pointer) override { return false; }

 protected:
  void check(custom_pointer, bool) override {}
};

struct lax_widget {
  lax_widget() {
    top.add(u"Сцена");
    view.set_checks(&checks);
    root.place(view.pointer());
  }
  custom_pointer layout() { return root.pointer(); }

  node top;
  lax_checks checks;
  tree_outline view{top};
  toolkit::grid_layout<1, 1> root;
};

TEST(HostilePass, ReportsEveryAnswerThatIsNotTheNeutralOne) {
  toolkit::docker<lax_widget> frame{10};
  const host::dialog::hostile_report report =
      host::dialog::run_hostile_pass(frame.pointer(), custom_pointer{});
  EXPECT_EQ(report.rows, 1u);
  EXPECT_EQ(report.deviations, std::vector<std::string>{"checks.enabled(null row) answered true"});
  const std::string text = host::dialog::describe(report);
  EXPECT_TRUE(
      text.ends_with("; 1 answer not neutral:\nhostile: checks.enabled(null row) "
                     "answered true\n"))
      << text;
}

// Records the host commands it is given.
class recording_host final : public host::dialog::host_commands {
 public:
  host::dialog::command_outcome run(const host::dialog::command& c) override {
    elements.push_back(c.arguments.at(0));
    return {std::nullopt, "host: deleted " + c.arguments.at(0) + "\n", {}};
  }
  std::vector<std::string> elements;
};

std::int32_t show(modal_dialog_view& view, test_dialog& d) {
  const tx_custom_pointer v = view.pair();
  return static_cast<const tx_modal_dialog_view_interface_101*>(v.table)->show(
      v.object, d.frame.pointer(), d.buttons.pointer());
}

std::string read_all(std::FILE* file) {
  std::rewind(file);
  std::string all;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) all += static_cast<char>(c);
  return all;
}

TEST(HostCommands, GoToTheHostAndAreRefusedWithoutOne) {
  const auto run = [](std::string_view text, recording_host* host, std::string& printed) {
    script_source commands("run.txt", parse_script(text).commands);
    std::FILE* out = std::tmpfile();
    modal_dialog_view view(commands, out, 0);
    view.set_host_commands(host);
    test_dialog d;
    show(view, d);
    printed = read_all(out);
    std::fclose(out);
    return view.error();
  };
  recording_host host;
  std::string printed;
  EXPECT_EQ(run("delete \"Лист 1\"\ndelete 0000000000000a04\n", &host, printed), "");
  EXPECT_EQ(host.elements, (std::vector<std::string>{"Лист 1", "0000000000000a04"}));
  EXPECT_EQ(printed,
            "> delete \"Лист 1\"\nhost: deleted Лист 1\n> delete 0000000000000a04\n"
            "host: deleted 0000000000000a04\n> closebox  # the commands ended\n");
  EXPECT_EQ(run("delete Реки\n", nullptr, printed),
            "run.txt:1: this host deletes no project elements");
  EXPECT_EQ(run("reopen\n", &host, printed),
            "run.txt:1: reopen runs the utility again once its dialog has closed");
}

TEST(Reopen, OnlyFollowsAClosedDialog) {
  script_source commands("run.txt", parse_script("reopen\n# again\nreopen\nprint\n").commands);
  EXPECT_TRUE(host::dialog::next_after_dialog(commands, true).reopen);
  EXPECT_TRUE(host::dialog::next_after_dialog(commands, true).reopen);
  const host::dialog::after_dialog rest = host::dialog::next_after_dialog(commands, true);
  EXPECT_FALSE(rest.reopen);
  EXPECT_EQ(rest.error, "run.txt:4: the dialog is already closed: only reopen can follow");

  script_source unshown("run.txt", parse_script("reopen\n").commands);
  const host::dialog::after_dialog refused = host::dialog::next_after_dialog(unshown, false);
  EXPECT_FALSE(refused.reopen);
  EXPECT_EQ(refused.error, "run.txt:1: no dialog was shown for this command");
}

// A .bmp file of 2 × 3 pixels (2 rows, stored bottom-up), 24 bits a pixel, rows padded to 12.
std::vector<std::uint8_t> bmp_file(std::uint16_t bits = 24) {
  std::vector<std::uint8_t> file(14 + 40 + 2 * 12, 0);
  const auto put32 = [&file](std::size_t at, std::uint32_t v) {
    for (std::size_t i = 0; i < 4; ++i) file[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
  };
  file[0] = 'B';
  file[1] = 'M';
  put32(2, static_cast<std::uint32_t>(file.size()));
  put32(10, 54);
  put32(14, 40);
  put32(18, 3);  // width
  put32(22, 2);  // height
  file[26] = 1;
  file[28] = static_cast<std::uint8_t>(bits);
  return file;
}

TEST(CatalogueLocalizer, AnswersInTheLanguageOrInRussianAndHandsPicturesTopRowFirst) {
  const host::catalogue_string strings[] = {
      {10, u"Переименование"}, {50010, u"Rename"}, {11, u"только по-русски"}};
  const std::vector<std::uint8_t> good = bmp_file();
  const std::vector<std::uint8_t> paletted = bmp_file(8);
  const host::catalogue_bitmap bitmaps[] = {{100, good}, {101, paletted}};
  host::catalogue_localizer english(strings, bitmaps, 50000);
  host::catalogue_localizer unknown(strings, bitmaps, 30000);

  const auto text = [](host::catalogue_localizer& l, std::int32_t id) -> std::string {
    host::string_collector collector;
    if (!l.load_string(id, collector.pair())) return "(none)";
    return host::to_utf8(collector.text());
  };
  EXPECT_EQ(text(english, 10), "Rename");
  EXPECT_EQ(text(english, 11), "только по-русски");
  EXPECT_EQ(text(unknown, 10), "Переименование");
  EXPECT_EQ(text(english, 12), "(none)");
  EXPECT_EQ(text(english, -101), "(none)");  // the host's basic library's, not the catalogue's
  EXPECT_TRUE(english.load_string(10, custom_pointer{}));

  const std::optional<host::dialog::picture_size> size = host::dialog::collect_picture(
      [&](tx_custom_pointer v) { return english.load_bitmap(100, v); });
  ASSERT_TRUE(size.has_value());
  EXPECT_EQ(size->rows, 2);
  EXPECT_EQ(size->columns, 3);
  EXPECT_EQ(size->channels, 3);
  EXPECT_FALSE(english.load_bitmap(101, custom_pointer{}));  // not 24 bits a pixel
  EXPECT_FALSE(english.load_bitmap(102, custom_pointer{}));
  EXPECT_TRUE(english.load_bitmap(100, custom_pointer{}));
}

TEST(WarningEcho, CanBeSwitchedOffWhileEveryWarningIsStillRecorded) {
  tx_host_msgs_clear();
  ASSERT_TRUE(tx_host_msgs_echo());
  tx_host_msgs_set_echo(false);
  testing::internal::CaptureStderr();
  tx_show_wwarning(u"тихо");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  tx_host_msgs_set_echo(true);
  testing::internal::CaptureStderr();
  tx_show_wwarning(u"вслух");
  std::string printed = testing::internal::GetCapturedStderr();
  std::erase(printed, '\r');
  EXPECT_EQ(printed, "warning: вслух\n");
  ASSERT_EQ(tx_host_msgs_warning_count(), 2u);
  EXPECT_EQ(std::u16string(tx_host_msgs_warning(0)), u"тихо");
  tx_host_msgs_clear();
}

}  // namespace
}  // namespace tx::test
