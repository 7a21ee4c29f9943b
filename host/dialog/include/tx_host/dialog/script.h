// The script language of the dialog driver: one command a line, words separated by blanks, an
// argument with blanks written in double quotes ("a b", with \" and \\ inside), `#` at the start
// of a word beginning a comment, blank lines ignored. UTF-8. docs/script-format.md tells it for
// a person; this header is its grammar.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tx::host::dialog {

// What a command does; each verb has a fixed number of arguments (verb_arity).
enum class verb {
  print,       // render the dialog now
  help,        // list the commands
  op,          // OPERATION: choose the shown operation in the operation selector
  set,         // FIELD VALUE: set an input field of the dialog
  tick,        // ROW: tick the row's box
  untick,      // ROW: clear the row's box
  select,      // ROW: add the row to the selection
  deselect,    // ROW: take the row out of the selection
  expand,      // ROW: show the rows under the row
  collapse,    // ROW: hide the rows under the row
  rename,      // ROW TEXT: type TEXT into the row's editable cell, then Enter
  escape,      // ROW TEXT: type TEXT into the row's editable cell, then Esc: nothing changes
  click,       // TOOL: click a toolbar tool by its id or caption
  accept,      // press the accepting button
  close,       // press the closing button
  press,       // BUTTON: press a button by its caption or 1-based position
  closebox,    // close the dialog with the frame's close box
  tools,       // list the toolbar's tools with their images
  screenshot,  // FILE: save the dialog's window as a PNG (the text host does nothing)
  remove,      // ELEMENT: another part of the host deletes a project element ("delete")
  reopen,      // run the utility again, after its dialog has closed
  // The window's keyboard and mouse (txhost --gui); the text host refuses them.
  keys,          // KEYS: press keys (key_names.h) through the system's input queue
  type,          // TEXT: type TEXT into the focused control through the input queue
  focus,         // print which control has the keyboard focus
  random_input,  // COUNT SERIES: COUNT random keys and clicks from SERIES ("random-input")
};

// The verb's name as written in a script.
std::string_view verb_name(verb v) noexcept;
// The names of the verb's arguments, e.g. {"ROW", "TEXT"}; their count is the verb's arity.
const std::vector<std::string_view>& verb_arguments(verb v);

struct command {
  verb what = verb::print;
  std::vector<std::string> arguments;
  // 1-based line in its source.
  std::size_t line = 0;
  // The line as written, without its comment and surrounding blanks (what is echoed).
  std::string text;

  bool operator==(const command&) const = default;
};

struct script_error {
  std::size_t line = 0;
  std::string message;

  bool operator==(const script_error&) const = default;
};

// One line read: a command, nothing (blank or comment), or an error.
struct parsed_line {
  std::optional<command> parsed;
  std::optional<script_error> error;
};

// Parses line `number` (without its line break; a trailing carriage return is ignored).
parsed_line parse_line(std::string_view line, std::size_t number);

struct parsed_script {
  std::vector<command> commands;
  // The first line that does not parse; the commands before it are kept.
  std::optional<script_error> error;
};

// Parses a whole script (a UTF-8 byte order mark at its start is skipped); stops at the first
// error.
parsed_script parse_script(std::string_view text);

// The numbers of `random-input COUNT SERIES` (COUNT 1 to 1,000,000, SERIES 0 to 4,294,967,295), or
// what is wrong with them.
struct random_input_arguments {
  std::uint32_t count = 0;
  std::uint32_t series = 0;
  std::string error;
};
random_input_arguments read_random_input(const std::vector<std::string>& arguments);

// The command summary printed by `help`, one command a line.
std::string command_summary();

}  // namespace tx::host::dialog
