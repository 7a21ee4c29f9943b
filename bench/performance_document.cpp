#include "performance_document.h"

#include <array>

#include "project_files_table.h"
#include "scale_tables.h"
#include "window_table.h"

namespace tx::bench {
namespace {

std::string tree_section(const scale_results* results, const std::string& missing) {
  if (results == nullptr) return "Not measured: " + missing + "\n";
  return tree_time_table(*results) + "\n" + tree_memory_table(*results);
}

std::string measured_line(const document_inputs& inputs) {
  std::string text = "Measured " + inputs.date + " on " + inputs.machine + ".";
  if (!inputs.native_load.empty()) {
    text +=
        " Load average (1, 5, 15 min) before and after the native run: " + inputs.native_load + ";";
  }
  if (!inputs.windows_load.empty()) {
    text += " before and after the run under Wine: " + inputs.windows_load + ".";
  }
  return text + "\n";
}

std::string window_section(const document_inputs& inputs) {
  if (inputs.window == nullptr) return "Not measured: " + inputs.window_missing + "\n";
  std::string text = window_table(*inputs.window);
  if (!inputs.window_load.empty()) {
    text += "\nLoad average (1, 5, 15 min) before and after the run: " + inputs.window_load + ".\n";
  }
  return text;
}

std::string project_files_section(const document_inputs& inputs) {
  if (inputs.project_files == nullptr) {
    return "Not measured: " + inputs.project_files_missing + "\n";
  }
  std::string text = project_files_tables(*inputs.project_files);
  if (!inputs.date.empty()) text += "\nMeasured " + inputs.date + " on " + inputs.machine + ".";
  if (!inputs.project_files_load.empty()) {
    text +=
        " Load average (1, 5, 15 min) before and after the run: " + inputs.project_files_load + ".";
  }
  return text + "\n";
}

// Where the section that begins at `start` ends: at the next heading of its level or higher.
std::size_t section_end(std::string_view text, std::size_t start, std::string_view heading) {
  const std::size_t level = heading.find_first_not_of('#');
  std::size_t line = text.find('\n', start);
  while (line != std::string_view::npos) {
    const std::size_t next = line + 1;
    const std::size_t hashes = text.substr(next).find_first_not_of('#');
    if (hashes > 0 && hashes <= level && hashes != std::string_view::npos &&
        text.substr(next + hashes).starts_with(" ")) {
      return next;
    }
    line = text.find('\n', next);
  }
  return text.size();
}

// Where the line `heading` begins in `text`, or npos.
std::size_t heading_at(std::string_view text, std::string_view heading) {
  for (std::size_t at = text.find(heading); at != std::string_view::npos;
       at = text.find(heading, at + 1)) {
    const bool starts_line = at == 0 || text[at - 1] == '\n';
    const std::size_t after = at + heading.size();
    if (starts_line && (after == text.size() || text[after] == '\n')) return at;
  }
  return std::string_view::npos;
}

// The generated part of `placeholder`, or nothing when the line is no placeholder.
std::optional<std::string> generated(std::string_view placeholder, const document_inputs& inputs) {
  const std::array<measured_build, 2> builds{
      {{"native", inputs.native}, {"Windows under Wine", inputs.windows}}};
  if (placeholder == "@MEASURED@") return measured_line(inputs);
  if (placeholder == "@TREE_NATIVE@") return tree_section(inputs.native, inputs.native_missing);
  if (placeholder == "@TREE_WINDOWS@") return tree_section(inputs.windows, inputs.windows_missing);
  if (placeholder == "@RENAME@") return rename_table(builds, inputs.sed_names_per_second);
  if (placeholder == "@RUNTIME@") return runtime_table(builds);
  if (placeholder == "@GOALS@") return goals_table(builds, inputs.sed_names_per_second);
  if (placeholder == "@WINDOW@") return window_section(inputs);
  if (placeholder == "@PROJECT_FILES@") return project_files_section(inputs);
  if (placeholder == "@MISSED@") {
    const std::string missed = missed_goals(builds, inputs.sed_names_per_second);
    return missed.empty() ? std::string("Every goal is met in both builds.\n") : missed;
  }
  return std::nullopt;
}

}  // namespace

std::string compose_performance_document(std::string_view template_text,
                                         const document_inputs& inputs) {
  std::string document;
  while (!template_text.empty()) {
    const std::size_t end = template_text.find('\n');
    const std::string_view line = template_text.substr(0, end);
    template_text.remove_prefix(end == std::string_view::npos ? template_text.size() : end + 1);
    if (const std::optional<std::string> part = generated(line, inputs)) {
      document += *part;
    } else {
      document.append(line);
      document += '\n';
    }
  }
  return document;
}

}  // namespace tx::bench

namespace tx::bench {

std::optional<std::string> replace_section(std::string_view document, std::string_view composed,
                                           std::string_view heading) {
  const std::size_t from = heading_at(composed, heading);
  if (from == std::string_view::npos) return std::nullopt;
  const std::string_view section =
      composed.substr(from, section_end(composed, from, heading) - from);
  std::string result;
  const std::size_t at = heading_at(document, heading);
  if (at == std::string_view::npos) {
    result = document;
    if (!result.empty() && !result.ends_with("\n\n"))
      result += result.ends_with('\n') ? "\n" : "\n\n";
    result += section;
    return result;
  }
  result = document.substr(0, at);
  result += section;
  result += document.substr(section_end(document, at, heading));
  return result;
}

}  // namespace tx::bench
