// The steps the window benchmark times over the outline of a large project, and the goal of
// each: shared by the benchmark, which writes one result per step, and the performance document,
// which shows them. Each step's results are «window.<key>.ms» (the whole step, median),
// «window.<key>.plugin_ms» (the plug-in's share, where it is told apart) and «window.<key>.host_ms»
// (the rest: the host's own); «window.elements» and «window.runs» say what was run.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tx::bench {

enum class window_goal {
  none,      // shown for what it tells, no goal
  total,     // the whole step within the goal
  host_own,  // the host's own time (the step less the plug-in's share) within the goal
};

struct window_step {
  std::string_view key;
  std::string_view title;
  window_goal goal;
  double goal_ms;
};

inline constexpr std::array<window_step, 10> kWindowSteps{{
    {"usable", "window usable after the project is loaded (dialog tree, outline made and drawn)",
     window_goal::total, 1000},
    {"expand_all", "expand every row (the Expand tool)", window_goal::none, 0},
    {"scroll_page", "scroll one page down", window_goal::host_own, 200},
    {"scroll_middle", "scroll to the middle of the list", window_goal::host_own, 200},
    {"collapse", "collapse a row near the top (its 2,550 rows out)", window_goal::host_own, 200},
    {"expand", "expand it again (its 2,550 rows in)", window_goal::host_own, 200},
    {"tick", "tick a row", window_goal::host_own, 200},
    {"execute", "Execute over every element (plug-in's step and redraw)", window_goal::none, 0},
    {"redraw", "redraw after Execute (every row read again and drawn)", window_goal::host_own, 200},
    {"undo", "undo (the plug-in's step back and the redraw)", window_goal::none, 0},
}};

inline std::string window_key(std::string_view step, std::string_view what) {
  return "window." + std::string(step) + "." + std::string(what);
}

}  // namespace tx::bench
