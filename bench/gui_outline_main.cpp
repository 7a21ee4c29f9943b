// The window host's outline over a project of a million elements, under Wine with a display:
// how long until the window is usable, and how long each step a person takes keeps them
// waiting — scrolling a page, expanding and collapsing a row, ticking a row, the redraw after
// Execute — with the plug-in's own share told apart where it can be. Each step runs a few times
// and the median is shown. Not a test: nothing is asserted. With --results=FILE it also writes
// what it measured, one «key<TAB>value» line each (the keys of window_steps.h), for the
// performance document; `./x bench` runs it so.
//
//   build/windows/wine-run.sh build/windows/bin/tx_gui_outline_bench.exe [ELEMENTS]
//       [--results=FILE]
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "element/project_rename_widget.h"
#include "outline_control.h"
#include "refreshing_view.h"
#include "scale_results.h"
#include "toolbar_control.h"
#include "tree_project_file.h"
#include "tx/toolkit/controls.h"
#include "tx/toolkit/outline.h"
#include "tx/toolkit/toolbar.h"
#include "tx_host/basic.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/dialog/script_targets.h"
#include "tx_host/dialog/toolbar_reader.h"
#include "tx_host/gui/window_surface.h"
#include "tx_host/msgs.h"
#include "tx_host/project.h"
#include "tx_host/services/interface_object.h"
#include "tx_host/services/utf.h"
#include "window_steps.h"

namespace tx::bench {
namespace {

using host::gui::refreshing_view;

using clock_type = std::chrono::steady_clock;

double milliseconds_of(const std::function<void()>& step) {
  const auto start = clock_type::now();
  step();
  return std::chrono::duration<double, std::milli>(clock_type::now() - start).count();
}

// The median of `runs` runs of `step`, each after `prepare` (not timed).
double median_ms(int runs, const std::function<void()>& prepare,
                 const std::function<void()>& step) {
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) {
    prepare();
    times.push_back(milliseconds_of(step));
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

class parts final : public host::dialog::element_listener {
 public:
  void leaf(const host::dialog::element& e) override {
    if (e.kind == host::dialog::element_kind::outline) outline = e.pair;
    if (e.kind == host::dialog::element_kind::toolbar) toolbar = e.pair;
    if (e.kind == host::dialog::element_kind::assisted_input) inputs.push_back(e.pair);
  }
  tx_custom_pointer outline{};
  tx_custom_pointer toolbar{};
  std::vector<tx_custom_pointer> inputs;
};

void pump(HWND window) {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  UpdateWindow(window);
}

std::vector<host::gui::control*> controls;

// Asks what reading the rows asks of each shown row (the row, its key, whether it is selected
// and expanded), keeping nothing: the plug-in's share of a rebuild.
std::size_t row_questions(tx_custom_pointer outline, tx_custom_pointer parent) {
  std::size_t answers = 0;
  const std::int32_t count = host::call(outline, &tx_outline_interface_32::row_count, parent);
  for (std::int32_t i = 0; i < count; ++i) {
    const tx_custom_pointer row = host::call(outline, &tx_outline_interface_32::row, parent, i);
    answers += host::call(row, &tx_outline_item_interface_0::key) != 0;
    answers += host::call(outline, &tx_outline_interface_32::selected, row);
    if (host::call(outline, &tx_outline_interface_32::expanded, row)) {
      answers += row_questions(outline, row);
    }
  }
  return answers;
}

// Prints one figure and answers it.
double line(const char* what, double ms) {
  std::printf("  %-58s %9.1f ms\n", what, ms);
  return ms;
}

// Keeps one step's figures for the results: the whole step, the plug-in's share when it is told
// apart, how many runs the figure is the median of.
void record(scale_results& results, std::string_view step, int runs, double whole,
            std::optional<double> plugin = std::nullopt) {
  results.set(window_key(step, "ms"), whole);
  results.set(window_key(step, "runs"), runs);
  if (plugin) {
    results.set(window_key(step, "plugin_ms"), *plugin);
    results.set(window_key(step, "host_ms"), whole - *plugin);
  }
}

int run(std::size_t elements, scale_results& results) {
  const auto file = scale_project_file(TX_SCALE_PROJECTS, elements);
  if (!file || !tx_host_project_load(file->string().c_str())) {
    std::fprintf(stderr, "tx_gui_outline_bench: cannot open the project of %zu elements\n",
                 elements);
    return 1;
  }
  tx_host_set_lng(50000);
  std::printf("The window's outline over %zu elements (median of the runs)\n", elements);
  constexpr int runs = 5;
  results.set("window.elements", static_cast<double>(elements));
  results.set("window.runs", runs);
  auto widget = std::make_unique<project_rename_widget>();
  const double opened = milliseconds_of([&] { widget->open(); });
  line("plug-in: the dialog's tree built from the project", opened);
  parts found;
  host::dialog::walk(widget->layout(), found, host::dialog::walk_scope::shown);

  host::gui::start_common_controls();
  HWND window = host::gui::make_controls_window(L"bench", 800, 700, controls);
  ShowWindow(window, SW_SHOW);
  pump(window);
  host::gui::metrics m;
  m.font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
  m.bold_font = m.font;

  std::unique_ptr<host::gui::outline_control> rows;
  std::unique_ptr<refreshing_view> view;
  const double shown = milliseconds_of([&] {
    rows = std::make_unique<host::gui::outline_control>(window, found.outline, m);
    rows->place({10, 40, 790, 660});
    pump(window);
  });
  line("window usable: the outline made, placed and drawn", shown);
  record(results, "usable", 1, opened + shown, opened);
  controls = {rows.get()};
  view = std::make_unique<refreshing_view>(*rows);
  host::gui::view_outline(found.outline, view->pair());
  host::gui::toolbar_control tools(window, found.toolbar, m);
  refreshing_view tools_view(tools);
  host::gui::view_toolbar(found.toolbar, tools_view.pair());
  const auto click = [&](const char* tool) {
    const host::dialog::lookup<std::size_t> named = host::dialog::find_tool(tools.tools(), tool);
    if (named) {
      tools.click(*named);
    } else {
      std::fprintf(stderr, "tx_gui_outline_bench: %s\n",
                   host::dialog::message(named.refused()).c_str());
    }
    pump(window);
  };
  std::printf("  rows shown at first: %zu\n", rows->shown_rows());

  HWND list = rows->list();
  const auto scroll_to = [&](std::size_t position) {
    SendMessageW(list, LVM_ENSUREVISIBLE, position, FALSE);
    pump(window);
  };
  const double expanded_all = milliseconds_of([&] { click("Expand"); });
  line("expand every row (the Expand tool: plug-in, rebuild, drawing)", expanded_all);
  record(results, "expand_all", 1, expanded_all);
  std::printf("  rows shown: %zu (flat index %zu bytes)\n", rows->shown_rows(),
              rows->shown_rows() * sizeof(host::window_logic::visible_row));
  line("  of which the host: rebuilding the rows and drawing them",
       median_ms(
           runs, [] {},
           [&] {
             rows->refresh(TX_CHANGED_ROWS);
             pump(window);
           }));
  line("    of which the plug-in answering the row questions",
       median_ms(
           runs, [] {}, [&] { row_questions(found.outline, tx_custom_pointer{}); }));
  scroll_to(0);
  const double page =
      line("scroll one page down", median_ms(
                                       runs, [] {},
                                       [&] {
                                         SendMessageW(list, WM_VSCROLL, SB_PAGEDOWN, 0);
                                         pump(window);
                                       }));
  record(results, "scroll_page", runs, page);
  const double middle =
      line("scroll to the middle of the list",
           median_ms(
               runs, [&] { scroll_to(0); }, [&] { scroll_to(rows->shown_rows() / 2); }));
  scroll_to(0);
  const std::string group = "2D scenes / map layers 1 / layer group 1";
  record(results, "scroll_middle", runs, middle);
  const double collapsed = line("collapse a row near the top (all rows below it move up)",
                                median_ms(
                                    runs,
                                    [&] {
                                      rows->expand(group, true);
                                      pump(window);
                                    },
                                    [&] {
                                      rows->expand(group, false);
                                      pump(window);
                                    }));
  record(results, "collapse", runs, collapsed);
  const double expanded =
      line("expand it again (its 2,550 rows spliced in)", median_ms(
                                                              runs,
                                                              [&] {
                                                                rows->expand(group, false);
                                                                pump(window);
                                                              },
                                                              [&] {
                                                                rows->expand(group, true);
                                                                pump(window);
                                                              }));
  const std::string layer = "2D scenes / map layers 1 / layer group 1 / layer group 1.1 / {1}";
  record(results, "expand", runs, expanded);
  const double ticked = line("tick a row, then untick it (each)", median_ms(
                                                                      runs, [] {},
                                                                      [&] {
                                                                        rows->tick(layer, true);
                                                                        pump(window);
                                                                        rows->tick(layer, false);
                                                                        pump(window);
                                                                      }) /
                                                                      2);
  record(results, "tick", runs, ticked);
  line("find a row by its path (part of every script action above)",
       median_ms(
           runs, [] {}, [&] { rows->select(layer, false); }));

  // Execute: «layer» → «слой» over every element.
  click("Select All");
  const std::u16string find = u"layer";
  const std::u16string replace = u"слой";
  host::call(found.inputs.at(0), &tx_assisted_input_interface_3::set_text, find.c_str());
  host::call(found.inputs.at(1), &tx_assisted_input_interface_3::set_text, replace.c_str());
  record(results, "execute", 1,
         line("Execute over every element (plug-in, rebuild, drawing)",
              milliseconds_of([&] { click("Execute"); })));
  const double redraw =
      line("  of which the host: the redraw after Execute", median_ms(
                                                                runs, [] {},
                                                                [&] {
                                                                  rows->refresh(TX_CHANGED_ROWS);
                                                                  pump(window);
                                                                }));
  const double answering =
      line("    of which the plug-in answering the row questions",
           median_ms(
               runs, [] {}, [&] { row_questions(found.outline, tx_custom_pointer{}); }));
  record(results, "redraw", runs, redraw, answering);
  record(results, "undo", 1,
         line("undo (the plug-in's step back, then the redraw)",
              milliseconds_of([&] { click("Undo"); })));

  host::gui::view_toolbar(found.toolbar, tx_custom_pointer{});
  host::gui::view_outline(found.outline, tx_custom_pointer{});
  controls.clear();
  rows.reset();
  DestroyWindow(window);
  return 0;
}

}  // namespace
}  // namespace tx::bench

int main(int argc, char** argv) {
  std::size_t elements = 1000000;
  std::string results_path;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument.starts_with("--results=")) {
      results_path = argument.substr(std::string_view("--results=").size());
    } else if (char* end = nullptr;
               (elements = std::strtoull(argv[i], &end, 10)) == 0 || *end != '\0') {
      std::fprintf(stderr, "usage: tx_gui_outline_bench [ELEMENTS] [--results=FILE]\n");
      return 2;
    }
  }
  tx::bench::scale_results results;
  const int status = tx::bench::run(elements, results);
  if (status != 0 || results_path.empty()) return status;
  std::ofstream out(results_path, std::ios::binary);
  results.write(out);
  out.close();
  if (!out) {
    std::fprintf(stderr, "tx_gui_outline_bench: cannot write %s\n", results_path.c_str());
    return 1;
  }
  return 0;
}
