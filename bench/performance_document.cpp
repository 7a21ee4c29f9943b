#include "performance_document.h"

#include <array>

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
