// A tiny outline over a tiny model, built the way the dialog builds its own: the outline and its
// columns keep nothing per row and answer from the nodes behind the row handles.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "toolkit/outline.h"
#include "toolkit/outline_item.h"

namespace tx::test {

struct node {
  std::u16string name;
  bool renameable = true;
  bool has_new_name = false;
  std::u16string new_name;
  bool selected = false, expanded = true, checked = false, changed_last = false;
  std::vector<std::unique_ptr<node>> children;

  node& add(std::u16string child, bool child_renameable = true) {
    auto& added = *children.emplace_back(std::make_unique<node>());
    added.name = std::move(child);
    added.renameable = child_renameable;
    return added;
  }
};

using row = toolkit::outline_item<node*>;
inline node* node_of(custom_pointer r) { return row::from(r).get(); }

class test_outline final : public toolkit::outline {
 public:
  explicit test_outline(node& top) : outline(15), top_(top) {}

  std::int32_t row_count(custom_pointer parent) override {
    const node* n = parent_of(parent);
    return n != nullptr ? static_cast<std::int32_t>(n->children.size()) : 0;
  }
  custom_pointer row(custom_pointer parent, std::int32_t i) override {
    const node* n = parent_of(parent);
    if (n == nullptr || i < 0 || static_cast<std::size_t>(i) >= n->children.size()) return {};
    return test::row(n->children[static_cast<std::size_t>(i)].get()).pointer();
  }
  bool selected(custom_pointer r) override { return node_of(r) && node_of(r)->selected; }
  void set_selected(custom_pointer r, bool on) override {
    if (node_of(r)) node_of(r)->selected = on;
  }
  bool expanded(custom_pointer r) override { return node_of(r) && node_of(r)->expanded; }
  void set_expanded(custom_pointer r, bool on) override {
    if (node_of(r)) node_of(r)->expanded = on;
  }
  bool faulty(custom_pointer r) override {
    return node_of(r) && node_of(r)->has_new_name && node_of(r)->new_name.empty();
  }

 private:
  // The null pair is the invisible top.
  node* parent_of(custom_pointer parent) const { return present(parent) ? node_of(parent) : &top_; }
  node& top_;
};

// The old names (read-only) or, with `pending`, the new names: editable on renameable rows,
// emphasized where changed last.
class name_column final : public toolkit::string_outline_column {
 public:
  name_column(const char16_t* id, std::int32_t header, bool pending)
      : string_outline_column(id, header, 20), pending_(pending) {}
  bool text(custom_pointer r, custom_pointer visitor) override {
    const node* n = node_of(r);
    return n && visit_text(visitor, (pending_ ? n->new_name : n->name).c_str());
  }
  bool editable(custom_pointer r) override {
    return pending_ && node_of(r) && node_of(r)->renameable;
  }
  bool emphasized(custom_pointer r) override {
    return pending_ && node_of(r) && node_of(r)->changed_last;
  }

 protected:
  void edit(custom_pointer r, std::u16string_view text) override {
    node_of(r)->has_new_name = true;
    node_of(r)->new_name = text;
  }

 private:
  bool pending_;
};

// Check boxes on every row that has a node.
class check_column final : public toolkit::outline_checks {
 public:
  bool checked(custom_pointer r) override { return node_of(r) && node_of(r)->checked; }
  bool enabled(custom_pointer r) override { return node_of(r) != nullptr; }

 protected:
  void check(custom_pointer r, bool on) override { node_of(r)->checked = on; }
};

// Two top-level rows, the first with one child, the second not renameable; both columns and
// the check boxes.
struct outline_fixture {
  node top;
  node& scene = top.add(u"Scene");
  node& layer = scene.add(u"Layer");
  node& collection = top.add(u"Collection", false);
  name_column names{u"old", 50, false};
  name_column new_names{u"new", 51, true};
  check_column checks;
  test_outline view{top};

  outline_fixture() {
    view.add_column(names);
    view.add_column(new_names);
    view.set_checks(&checks);
  }
};

}  // namespace tx::test
