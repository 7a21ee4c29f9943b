#include "window_table.h"

#include <cstdio>
#include <optional>

#include "grouped_number.h"
#include "window_steps.h"

namespace tx::bench {
namespace {

std::string ms_text(std::optional<double> value) {
  if (!value) return "not told apart";
  char text[32];
  std::snprintf(text, sizeof text, "%.1f ms", *value);
  return text;
}

std::string goal_text(const window_step& step) {
  if (step.goal == window_goal::none) return "";
  char text[48];
  std::snprintf(text, sizeof text, "%s ≤ %.0f ms",
                step.goal == window_goal::total ? "whole step" : "host's own", step.goal_ms);
  return text;
}

// What the goal is judged on: the whole step, or the host's own time (the whole step where the
// plug-in's share is not told apart, which can only make the host look slower).
std::optional<double> judged(const window_step& step, std::optional<double> whole,
                             std::optional<double> host) {
  if (step.goal == window_goal::total) return whole;
  return host ? host : whole;
}

}  // namespace

std::string window_table(const scale_results& results) {
  std::string table =
      "| step | time | plug-in's share | host's own | goal | met? |\n"
      "|---|---:|---:|---:|---|---|\n";
  std::string single_runs;
  for (const window_step& step : kWindowSteps) {
    const std::optional<double> whole = results.number(window_key(step.key, "ms"));
    const std::optional<double> plugin = results.number(window_key(step.key, "plugin_ms"));
    std::optional<double> host = results.number(window_key(step.key, "host_ms"));
    if (!host && whole && plugin) host = *whole - *plugin;
    std::string host_text = ms_text(host);
    if (!host && whole && step.goal == window_goal::host_own) {
      host_text = "≤ " + ms_text(whole) + " (the whole step)";
    }
    std::string met;
    if (step.goal != window_goal::none) {
      const std::optional<double> figure = judged(step, whole, host);
      met = !figure ? "not measured" : *figure <= step.goal_ms ? "met" : "**missed**";
    }
    table += "| " + std::string(step.title) + " | " + (whole ? ms_text(whole) : "not measured") +
             " | " + ms_text(plugin) + " | " + host_text + " | " + goal_text(step) + " | " + met +
             " |\n";
    if (whole && results.number(window_key(step.key, "runs")).value_or(0) == 1) {
      single_runs += single_runs.empty() ? "" : ", ";
      single_runs += step.title.substr(0, step.title.find(" ("));
    }
  }
  const std::optional<double> elements = results.number("window.elements");
  const std::optional<double> runs = results.number("window.runs");
  table += "\nOver " + grouped(elements.value_or(0)) + " elements; each time is the median of " +
           grouped(runs.value_or(0)) + " runs";
  if (!single_runs.empty()) {
    table += ", but one run of " + single_runs + " (a second run would measure something else)";
  }
  return table + ".\n";
}

}  // namespace tx::bench
