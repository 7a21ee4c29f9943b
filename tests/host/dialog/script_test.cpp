// The script language: every command with its arguments, quoting and comments, and every kind
// of error with the line it is on.
#include "tx_host/dialog/script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tx::host::dialog {
namespace {

// Every verb read back from its own name with as many arguments as it takes. (The scripts of the
// end-to-end cases use the commands with real arguments.)
TEST(ScriptLine, ParsesEveryCommandWithItsArgumentsAndTheSummaryNamesEach) {
  const std::string summary = command_summary();
  int verbs = 0;
  for (int v = 0; v <= static_cast<int>(verb::random_input); ++v, ++verbs) {
    const verb what = static_cast<verb>(v);
    std::string line(verb_name(what));
    std::vector<std::string> arguments;
    for (std::size_t i = 0; i < verb_arguments(what).size(); ++i) {
      // Keys and numbers are checked as the line is read; any text will do for the others.
      if (what == verb::keys) {
        arguments.push_back("Shift+Tab Alt+Т");
      } else if (what == verb::random_input) {
        arguments.push_back(std::to_string(300 + i));
      } else {
        arguments.push_back("Сцены " + std::to_string(i));
      }
      line += " \"" + arguments.back() + "\"";
    }
    const parsed_line parsed = parse_line(line, 7);
    ASSERT_TRUE(parsed.parsed.has_value()) << line << ": " << parsed.error->message;
    EXPECT_EQ(parsed.parsed->what, what) << line;
    EXPECT_EQ(parsed.parsed->arguments, arguments) << line;
    EXPECT_EQ(parsed.parsed->line, 7u);
    EXPECT_NE(summary.find("  " + std::string(verb_name(what)) + " "), std::string::npos) << line;
  }
  EXPECT_EQ(verb_name(verb::remove), "delete");
  EXPECT_EQ(verb_name(verb::random_input), "random-input");
  // A line for each command.
  EXPECT_EQ(std::count(summary.begin(), summary.end(), '\n'), verbs);
}

TEST(ScriptLine, QuotesBlanksAndCommentsAreReadAsWritten) {
  struct row {
    std::string line;
    std::vector<std::string> arguments;  // of `rename`
    std::string text;                    // what is echoed
  };
  const row rows[] = {
      {"rename a b", {"a", "b"}, "rename a b"},
      {"  \trename   a\t b  ", {"a", "b"}, "rename   a\t b"},
      {"rename a b # a comment", {"a", "b"}, "rename a b"},
      {"rename a b#c", {"a", "b#c"}, "rename a b#c"},
      {"rename \"a # b\" c", {"a # b", "c"}, "rename \"a # b\" c"},
      {"rename \"say \\\"hi\\\"\" \"back\\\\slash\"",
       {"say \"hi\"", "back\\slash"},
       "rename \"say \\\"hi\\\"\" \"back\\\\slash\""},
      {"rename \"C:\\dir\\n\" x", {"C:\\dir\\n", "x"}, "rename \"C:\\dir\\n\" x"},
      {"rename \"\" \"\"", {"", ""}, "rename \"\" \"\""},
      {"rename a b\r", {"a", "b"}, "rename a b"},
  };
  for (const row& r : rows) {
    const parsed_line parsed = parse_line(r.line, 1);
    ASSERT_TRUE(parsed.parsed.has_value()) << r.line << ": " << parsed.error->message;
    EXPECT_EQ(parsed.parsed->what, verb::rename);
    EXPECT_EQ(parsed.parsed->arguments, r.arguments) << r.line;
    EXPECT_EQ(parsed.parsed->text, r.text) << r.line;
  }
  for (const std::string nothing : {"", "   ", "\t", "# only a comment", "   # indented", "\r"}) {
    const parsed_line parsed = parse_line(nothing, 1);
    EXPECT_FALSE(parsed.parsed.has_value() || parsed.error.has_value()) << nothing;
  }
}

TEST(ScriptLine, TellsWhatIsWrongWithALine) {
  struct row {
    std::string line;
    std::string message;
  };
  const row rows[] = {
      {"frob", "unknown command 'frob' (help lists them)"},
      {"Print", "unknown command 'Print' (help lists them)"},
      {"\"print\" 1", "print takes no arguments"},
      {"tick", "tick takes ROW; none given"},
      {"tick Сцены 2D", "tick takes ROW; 2 arguments given (quote an argument that has blanks)"},
      {"set Найти", "set takes FIELD VALUE; 1 argument given"},
      {"tick \"Сцены 2D", "a quoted argument is not closed"},
      {"tick \"a\\\"", "a quoted argument is not closed"},
      {"set \"a\"b c", "a closing quote must be followed by a blank"},
      {"set a\"b\" c", "a quote inside a word: quote the whole argument"},
      {"tick \xD0", "the line is not UTF-8"},
      // Keys and the random run's numbers are read before anything runs.
      {"keys \"Tab Ctrl+Foo\"",
       "'Ctrl+Foo': no key 'Foo' (a key is a letter, a digit, Tab, Enter, "
       "Esc, Space, Up, Down, Left, Right, Home, End, PgUp, PgDn, "
       "Insert, Delete, Backspace or F1 to F12)"},
      {"keys \"\"",
       "no keys given (a key is a letter, a digit, Tab, Enter, Esc, Space, Up, Down, "
       "Left, Right, Home, End, PgUp, PgDn, Insert, Delete, Backspace or F1 to F12)"},
      {"random-input 0 1", "COUNT must be a whole number from 1 to 1000000, not '0'"},
      {"random-input 1000001 1", "COUNT must be a whole number from 1 to 1000000, not '1000001'"},
      {"random-input 20 -1", "SERIES must be a whole number from 0 to 4294967295, not '-1'"},
      {"random-input 20 4294967296",
       "SERIES must be a whole number from 0 to 4294967295, not '4294967296'"},
  };
  for (const row& r : rows) {
    const parsed_line parsed = parse_line(r.line, 12);
    EXPECT_FALSE(parsed.parsed.has_value()) << r.line;
    ASSERT_TRUE(parsed.error.has_value()) << r.line;
    EXPECT_EQ(*parsed.error, (script_error{12, r.message})) << r.line;
  }
}

TEST(Script, NumbersLinesFromOneAndStopsAtTheFirstError) {
  const parsed_script good = parse_script(
      "\xEF\xBB\xBF# a script\r\n\r\nop 2\r\n  # set nothing yet\nset 1 \"a b\"\naccept");
  EXPECT_FALSE(good.error.has_value());
  ASSERT_EQ(good.commands.size(), 3u);
  EXPECT_EQ(good.commands[0], (command{verb::op, {"2"}, 3, "op 2"}));
  EXPECT_EQ(good.commands[1], (command{verb::set, {"1", "a b"}, 5, "set 1 \"a b\""}));
  EXPECT_EQ(good.commands[2], (command{verb::accept, {}, 6, "accept"}));

  const parsed_script bad = parse_script("print\n\nclick\nprint\nfrob\n");
  ASSERT_TRUE(bad.error.has_value());
  EXPECT_EQ(*bad.error, (script_error{3, "click takes TOOL; none given"}));
  ASSERT_EQ(bad.commands.size(), 1u);
  EXPECT_EQ(bad.commands[0].what, verb::print);

  EXPECT_TRUE(parse_script("").commands.empty());
  EXPECT_FALSE(parse_script("\n\n\n").error.has_value());
}

}  // namespace
}  // namespace tx::host::dialog
