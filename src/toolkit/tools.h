// How a toolbar's tools are published: a with_tools offers its tools, in toolbar order and group
// by group, to a tools_visitor. The toolbar's tool set hands them on to the host's visitor;
// tools_visitor::toolset_state_impl walks them for the plug-in itself (to find a tool by id).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plugin/interface.h"

namespace tx::toolkit {

class tools_visitor {
 public:
  // Offers tool `id` (NUL-terminated, valid during the call) with its element pair; answers
  // whether further tools are taken. A visitor that answered false ignores later offers.
  virtual bool tool(const char16_t* id, custom_pointer tool) = 0;
  // The tools offered next belong to a new group.
  virtual void group() = 0;

  template <class Toolbar>
  class toolset_state_impl;

 protected:
  tools_visitor() = default;
  tools_visitor(const tools_visitor&) = default;
  tools_visitor& operator=(const tools_visitor&) = default;
  ~tools_visitor() = default;
};

// The tools of a toolbar. The first virtual operation publishes them: every tool once, in
// toolbar order, with group() between two groups (not before the first or after the last).
class with_tools {
 public:
  virtual void publish(tools_visitor& visitor) = 0;
  virtual ~with_tools() = default;

 protected:
  with_tools() = default;
  with_tools(const with_tools&) = delete;
  with_tools& operator=(const with_tools&) = delete;
};

// What a toolbar's tools looked like when walked: each tool with its id and its group (0 for
// the first group). Walks the tools of `Toolbar` (anything with `with_tools& tools()`) once, at
// construction; nothing is kept beyond the object's life.
template <class Toolbar>
class tools_visitor::toolset_state_impl final : public tools_visitor {
 public:
  struct entry {
    std::u16string id;
    custom_pointer tool;
    int group;
  };

  explicit toolset_state_impl(Toolbar& owner) {
    with_tools& tools = owner.tools();
    tools.publish(*this);
  }

  bool tool(const char16_t* id, custom_pointer tool) override {
    entries_.push_back({id != nullptr ? id : u"", tool, group_});
    return true;
  }
  void group() override { ++group_; }

  const std::vector<entry>& entries() const noexcept { return entries_; }

  // The first tool published under `id`; the null pair when none is.
  custom_pointer find(std::u16string_view id) const noexcept {
    for (const entry& e : entries_) {
      if (e.id == id) return e.tool;
    }
    return {};
  }

 private:
  std::vector<entry> entries_;
  int group_ = 0;
};

}  // namespace tx::toolkit
