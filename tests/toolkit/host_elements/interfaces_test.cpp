// What every element shares: it answers its own interface name and no other (not even another
// version of it), and it tells its view of changes only while it has one.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "host_doubles.h"
#include "toolkit/bitmap.h"
#include "toolkit/checkbox.h"
#include "toolkit/label.h"
#include "toolkit/outline.h"
#include "toolkit/outline_item.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace tx::test {
namespace {

using action_tool = toolkit::detail::tool<action_tool_impl, void>;

struct one_tool final : toolkit::with_tools {
  void publish(toolkit::tools_visitor& visitor) override { visitor.tool(u"only", only.pointer()); }
  action_tool only;
};

// An outline without rows: enough to tell its view.
struct rowless_outline final : toolkit::outline {
  rowless_outline() : outline(0) {}
  std::int32_t row_count(custom_pointer) override { return 0; }
  custom_pointer row(custom_pointer, std::int32_t) override { return {}; }
  bool selected(custom_pointer) override { return false; }
  void set_selected(custom_pointer, bool) override {}
  bool expanded(custom_pointer) override { return false; }
  void set_expanded(custom_pointer, bool) override {}
  bool faulty(custom_pointer) override { return false; }
};

// The elements the reference host finds by name (the docker, the button box, the layouts, the
// controls, the outline with its columns and checks, the toolbar) are in the end-to-end cases,
// whose dialog falls apart when one answers a wrong name; these are the ones it never asks by
// name: the label, the picture, a row, the tool set and its tools.
TEST(Elements, EachAnswersOnlyItsOwnInterfaceName) {
  toolkit::toolbar<one_tool, toolbar_impl, void> bar;
  toolkit::bitmap picture(100);
  toolkit::label label;
  int layer = 0;  // what a row handle stands for
  const std::pair<tx_custom_pointer, const char*> elements[] = {
      {label.pointer(), TX_LABEL_INTERFACE_2},
      {picture.pointer(), TX_BITMAP_INTERFACE_0},
      {toolkit::outline_item<int*>(&layer).pointer(), TX_OUTLINE_ITEM_INTERFACE_0},
      {bar.pointer(), TX_TOOLBAR_INTERFACE_6},
      {bar.tool_set(), TX_TOOL_SET_INTERFACE_5},
      {bar.tools().only.pointer(), TX_ACTION_TOOL_INTERFACE_0},
  };
  const char* other_versions[] = {"tx_outline_interface_31", "tx_label_interface_3",
                                  "tx_outline_item_interface", ""};
  for (const auto& [element, own] : elements) {
    for (const auto& [unused, name] : elements) {
      EXPECT_TRUE(
          same(ask(element, name), std::string(name) == own ? element : tx_custom_pointer{}))
          << own << " asked for " << name;
    }
    for (const char* name : other_versions) {
      EXPECT_TRUE(same(ask(element, name), {})) << own << " asked for " << name;
    }
  }
}

TEST(Elements, ANullViewNotifiesNobodyAndAPresentOneIsTold) {
  rowless_outline outline;
  action_tool tool;
  toolkit::bitmap picture(100);
  toolkit::checkbox box(153);
  struct view_case {
    const char* what;
    std::function<void(tx_custom_pointer)> set_view;
    std::function<void()> change;
    std::uint32_t told;
  };
  const view_case cases[] = {
      {"outline", [&](tx_custom_pointer v) { outline.set_view(v); }, [&] { outline.reload(); },
       TX_CHANGED_ROWS},
      {"tool", [&](tx_custom_pointer v) { tool.set_view(v); },
       [&] { tool.set_enabled(!tool.enabled()); }, TX_CHANGED_STATE},
      {"bitmap", [&](tx_custom_pointer v) { picture.set_view(v); },
       [&] { picture.set_image(picture.image() + 1); }, TX_CHANGED_VALUE},
      {"check box", [&](tx_custom_pointer v) { box.set_view(v); },
       [&] { box.check(!box.is_checked()); }, TX_CHANGED_VALUE},
  };
  for (const view_case& c : cases) {
    recording_view view;
    c.set_view(view.pointer());
    c.change();
    for (const tx_custom_pointer absent :
         {tx_custom_pointer{}, {view.pointer().table, nullptr}, {nullptr, &view}}) {
      c.set_view(absent);
      c.change();
    }
    EXPECT_EQ(view.told, std::vector<std::uint32_t>{c.told}) << c.what;
  }
}

}  // namespace
}  // namespace tx::test
