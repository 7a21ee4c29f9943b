// The toolbar as the host walks it, and its action tools: publication in groups, a visitor that
// stops taking tools, finding a tool by id, the state hook, clicks, texts and images.
#include "toolkit/toolbar.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host_doubles.h"
#include "toolkit/tool.h"

namespace tx::test {
namespace {

using action_tool = toolkit::detail::tool<action_tool_impl, void>;
using tool_ops = tx_action_tool_interface_0;

// Four tools in three groups: a, b | c | d.
struct four_tools final : toolkit::with_tools {
  void publish(toolkit::tools_visitor& visitor) override {
    visitor.tool(u"a", a.pointer());
    visitor.tool(u"b", b.pointer());
    visitor.group();
    visitor.tool(u"c", c.pointer());
    visitor.group();
    visitor.tool(u"d", d.pointer());
  }
  action_tool a, b, c, d;
};
using four_toolbar = toolkit::toolbar<four_tools, toolbar_impl, void>;

TEST(Toolbar, PublishesItsToolsGroupByGroupUntilTheHostDeclines) {
  struct limit_case {
    int limit;
    std::vector<std::u16string> seen;
  };
  const limit_case cases[] = {
      {-1, {u"a", u"b", u"|", u"c", u"|", u"d"}},
      {1, {u"a"}},
      {2, {u"a", u"b"}},
      {3, {u"a", u"b", u"|", u"c"}},
  };
  for (const limit_case& c : cases) {
    four_toolbar bar;
    const tx_custom_pointer set =
        ops<tx_toolbar_interface_6>(bar.pointer()).tool_set(bar.pointer().object);
    tools_sink host;
    host.limit = c.limit;
    ops<tx_tool_set_interface_5>(set).visit_tools(set.object, host.pointer());
    EXPECT_EQ(host.seen, c.seen) << c.limit;
    ASSERT_FALSE(host.tools.empty());
    EXPECT_TRUE(same(host.tools[0], bar.tools().a.pointer()));
  }
}

TEST(Toolbar, FindsAToolByItsId) {
  four_toolbar bar;
  const tx_custom_pointer set =
      ops<tx_toolbar_interface_6>(bar.pointer()).tool_set(bar.pointer().object);
  const auto find = ops<tx_tool_set_interface_5>(set).find_tool;
  EXPECT_TRUE(same(find(set.object, u"c"), bar.tools().c.pointer()));
  EXPECT_TRUE(same(find(set.object, u"d"), bar.tools().d.pointer()));
  for (const char16_t* id : {u"e", u"", static_cast<const char16_t*>(nullptr)}) {
    EXPECT_FALSE(present(find(set.object, id)));
  }
}

TEST(ActionTool, TheStateHookIsCalledOnlyWhenEnabledOrVisibleReallyChanges) {
  action_tool tool;
  recording_view hook;
  const tx_custom_pointer p = tool.pointer();
  ops<tool_ops>(p).set_view(p.object, hook.pointer());
  struct step {
    bool enabled, visible;
    std::size_t calls;  // hook calls so far
  };
  for (const step& s : {step{true, true, 0}, step{false, true, 1}, step{false, true, 1},
                        step{false, false, 2}, step{true, true, 4}}) {
    tool.set_enabled(s.enabled);
    tool.set_visible(s.visible);
    EXPECT_EQ(hook.told.size(), s.calls) << s.enabled << s.visible;
    EXPECT_EQ(ops<tool_ops>(p).enabled(p.object), s.enabled);
    EXPECT_EQ(ops<tool_ops>(p).visible(p.object), s.visible);
  }
  EXPECT_EQ(hook.told, std::vector<std::uint32_t>(4, TX_CHANGED_STATE));
}

TEST(ActionTool, AClickRunsTheActionThenRaisesInvokedOnlyWhenEnabledAndVisible) {
  struct click_case {
    bool enabled, visible;
    std::vector<std::string> log;
  };
  for (const click_case& c : {click_case{true, true, {"action", "invoked"}},
                              click_case{false, true, {}}, click_case{true, false, {}}}) {
    std::vector<std::string> log;
    action_tool tool;
    tool.set_action([&] { log.emplace_back("action"); });
    const auto connection = tool.invoked.connect([&] { log.emplace_back("invoked"); });
    tool.set_enabled(c.enabled);
    tool.set_visible(c.visible);
    ops<tool_ops>(tool.pointer()).invoke(tool.pointer().object);
    EXPECT_EQ(log, c.log) << c.enabled << c.visible;
  }
}

TEST(ActionTool, AnActionMayReplaceItselfWhileItRuns) {
  action_tool tool;
  int first = 0, second = 0;
  tool.set_action([&] {
    ++first;
    tool.set_action([&] { ++second; });
  });
  tool.invoke();
  tool.invoke();
  EXPECT_EQ(first + second, 2);
  EXPECT_EQ(second, 1);
}

TEST(ActionTool, TextsAndImagesLoadFromTheirReferences) {
  action_tool tool;
  tool.configure(103, 103, 104, {});
  tool.set_extra_images({-118, 0});
  const tx_custom_pointer p = tool.pointer();
  const auto& t = ops<tool_ops>(p);
  string_sink texts;
  EXPECT_TRUE(t.caption(p.object, texts.pointer()) && t.hint(p.object, texts.pointer()));
  EXPECT_EQ(texts.texts, (std::vector<std::u16string>{u"Развернуть", u"Свернуть"}));

  bytes_sink images;
  EXPECT_TRUE(t.image(p.object, images.pointer()));
  ASSERT_EQ(t.extra_image_count(p.object), 2);
  EXPECT_TRUE(t.extra_image(p.object, 0, images.pointer()));  // the host's basic library
  for (std::int32_t absent : {1, 2, -1})
    EXPECT_FALSE(t.extra_image(p.object, absent, images.pointer()));
  ASSERT_EQ(images.calls.size(), 2u);
  EXPECT_EQ(images.calls[0].shape(), (std::vector<std::int32_t>{16, 16, 3}));

  action_tool bare;  // never configured: no texts, no image, nothing visited
  EXPECT_FALSE(bare.caption(texts.pointer()) || bare.hint(texts.pointer()) ||
               bare.image(images.pointer()));
  EXPECT_EQ(texts.texts.size() + images.calls.size(), 4u);
}

}  // namespace
}  // namespace tx::test
