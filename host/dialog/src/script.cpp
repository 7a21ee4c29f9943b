#include "tx_host/dialog/script.h"

#include <algorithm>
#include <array>
#include <optional>

#include "tx_host/dialog/key_names.h"
#include "tx_host/services/utf.h"

namespace tx::host::dialog {
namespace {

struct verb_entry {
  verb what;
  std::string_view name;
  std::vector<std::string_view> arguments;
  std::string_view summary;
};

const std::array<verb_entry, 25>& verbs() {
  static const std::array<verb_entry, 25> table{{
      {verb::print, "print", {}, "render the dialog now"},
      {verb::help, "help", {}, "list the commands"},
      {verb::op, "op", {"OPERATION"}, "choose the shown operation (caption or number)"},
      {verb::set, "set", {"FIELD", "VALUE"}, "set a field (caption or number) to VALUE"},
      {verb::tick, "tick", {"ROW"}, "tick the row's box"},
      {verb::untick, "untick", {"ROW"}, "clear the row's box"},
      {verb::select, "select", {"ROW"}, "add the row to the selection"},
      {verb::deselect, "deselect", {"ROW"}, "take the row out of the selection"},
      {verb::expand, "expand", {"ROW"}, "show the rows under the row"},
      {verb::collapse, "collapse", {"ROW"}, "hide the rows under the row"},
      {verb::rename, "rename", {"ROW", "TEXT"}, "type TEXT into the row's editable cell, Enter"},
      {verb::escape, "escape", {"ROW", "TEXT"}, "type TEXT into the row's editable cell, Esc"},
      {verb::click, "click", {"TOOL"}, "click a tool (id or caption)"},
      {verb::accept, "accept", {}, "press the accepting button"},
      {verb::close, "close", {}, "press the closing button"},
      {verb::press, "press", {"BUTTON"}, "press a button (caption or number)"},
      {verb::closebox, "closebox", {}, "close the dialog with the frame's close box"},
      {verb::tools, "tools", {}, "list the tools with their captions and images"},
      {verb::screenshot, "screenshot", {"FILE"}, "save the dialog's window as a PNG (--gui)"},
      {verb::remove, "delete", {"ELEMENT"}, "the host deletes a project element (uuid or caption)"},
      {verb::reopen, "reopen", {}, "run the utility again (after its dialog closed)"},
      {verb::keys, "keys", {"KEYS"}, "press keys, e.g. \"Tab Shift+Tab Alt+Down\" (--gui)"},
      {verb::type, "type", {"TEXT"}, "type TEXT into the focused control (--gui)"},
      {verb::focus, "focus", {}, "tell which control has the keyboard focus (--gui)"},
      {verb::random_input,
       "random-input",
       {"COUNT", "SERIES"},
       "COUNT random keys and clicks from SERIES (--gui)"},
  }};
  return table;
}

const verb_entry& entry_of(verb v) {
  const auto& table = verbs();
  return *std::find_if(table.begin(), table.end(),
                       [v](const verb_entry& e) { return e.what == v; });
}

bool blank(char c) noexcept { return c == ' ' || c == '\t'; }

// The words of a line and the line's text without its comment; or what is wrong with it.
struct split_line {
  std::vector<std::string> words;
  std::string_view text;
  std::optional<std::string> error;
};

split_line split(std::string_view line) {
  split_line result;
  std::size_t i = 0;
  std::size_t end = line.size();
  while (true) {
    while (i < line.size() && blank(line[i])) ++i;
    if (i == line.size()) break;
    if (line[i] == '#') {
      end = i;
      break;
    }
    std::string word;
    if (line[i] == '"') {
      bool closed = false;
      for (++i; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '\\' && i + 1 < line.size() && (line[i + 1] == '"' || line[i + 1] == '\\')) {
          word += line[++i];
        } else if (c == '"') {
          closed = true;
          ++i;
          break;
        } else {
          word += c;
        }
      }
      if (!closed) {
        result.error = "a quoted argument is not closed";
        return result;
      }
      if (i < line.size() && !blank(line[i])) {
        result.error = "a closing quote must be followed by a blank";
        return result;
      }
    } else {
      for (; i < line.size() && !blank(line[i]); ++i) {
        if (line[i] == '"') {
          result.error = "a quote inside a word: quote the whole argument";
          return result;
        }
        word += line[i];
      }
    }
    result.words.push_back(std::move(word));
  }
  std::string_view text = line.substr(0, end);
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  result.text = text;
  return result;
}

std::string arity_error(const verb_entry& e, std::size_t given) {
  std::string message(e.name);
  if (e.arguments.empty()) return message + " takes no arguments";
  message += " takes";
  for (const std::string_view argument : e.arguments) message.append(" ").append(argument);
  if (given == 0) return message + "; none given";
  message += "; " + std::to_string(given) + (given == 1 ? " argument given" : " arguments given");
  if (given > e.arguments.size()) message += " (quote an argument that has blanks)";
  return message;
}

// Whether a number of decimal digits no greater than `most`; its value.
std::optional<std::uint32_t> bounded_number(std::string_view text, std::uint32_t most) {
  if (text.empty() || text.size() > 10) return std::nullopt;
  std::uint64_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + static_cast<std::uint64_t>(c - '0');
  }
  if (value > most) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}

// What is wrong with the arguments of a command that checks them before anything runs.
std::string argument_error(verb what, const std::vector<std::string>& arguments) {
  if (what == verb::keys) return parse_keys(arguments.at(0)).error;
  if (what == verb::random_input) return read_random_input(arguments).error;
  return {};
}

}  // namespace

random_input_arguments read_random_input(const std::vector<std::string>& arguments) {
  constexpr std::uint32_t kMostInputs = 1'000'000;
  random_input_arguments result;
  const std::optional<std::uint32_t> count = bounded_number(arguments.at(0), kMostInputs);
  const std::optional<std::uint32_t> series = bounded_number(arguments.at(1), 0xFFFF'FFFF);
  if (!count || *count == 0) {
    result.error.append("COUNT must be a whole number from 1 to 1000000, not '")
        .append(arguments.at(0))
        .append("'");
  } else if (!series) {
    result.error.append("SERIES must be a whole number from 0 to 4294967295, not '")
        .append(arguments.at(1))
        .append("'");
  } else {
    result.count = *count;
    result.series = *series;
  }
  return result;
}

std::string_view verb_name(verb v) noexcept { return entry_of(v).name; }

const std::vector<std::string_view>& verb_arguments(verb v) { return entry_of(v).arguments; }

parsed_line parse_line(std::string_view line, std::size_t number) {
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  parsed_line result;
  const auto fail = [&](std::string message) {
    result.error = script_error{number, std::move(message)};
    return result;
  };
  // A round trip through UTF-16 keeps well-formed UTF-8 exactly and changes anything else.
  if (to_utf8(to_utf16(line)) != line) return fail("the line is not UTF-8");
  split_line words = split(line);
  if (words.error) return fail(*words.error);
  if (words.words.empty()) return result;
  const auto& table = verbs();
  const std::string& name = words.words.front();
  const auto found = std::find_if(table.begin(), table.end(),
                                  [&name](const verb_entry& e) { return e.name == name; });
  if (found == table.end()) return fail("unknown command '" + name + "' (help lists them)");
  const std::size_t given = words.words.size() - 1;
  if (given != found->arguments.size()) return fail(arity_error(*found, given));
  std::vector<std::string> arguments{std::make_move_iterator(words.words.begin() + 1),
                                     std::make_move_iterator(words.words.end())};
  if (std::string error = argument_error(found->what, arguments); !error.empty()) {
    return fail(std::move(error));
  }
  result.parsed = command{found->what, std::move(arguments), number, std::string(words.text)};
  return result;
}

parsed_script parse_script(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  parsed_script result;
  std::size_t number = 0;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    parsed_line parsed = parse_line(line, ++number);
    if (parsed.error) {
      result.error = std::move(parsed.error);
      break;
    }
    if (parsed.parsed) result.commands.push_back(std::move(*parsed.parsed));
  }
  return result;
}

std::string command_summary() {
  std::string summary;
  for (const verb_entry& e : verbs()) {
    std::string usage(e.name);
    for (const std::string_view argument : e.arguments) usage.append(" ").append(argument);
    usage.resize(std::max<std::size_t>(usage.size() + 2, 22), ' ');
    summary += "  " + usage + std::string(e.summary) + "\n";
  }
  return summary;
}

}  // namespace tx::host::dialog
