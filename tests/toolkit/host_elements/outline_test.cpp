// The outline as the host drives it: rows and children from the model, per-row state read and
// written live, the columns' cells and edits, the check boxes, and reloads told to the view.
#include <gtest/gtest.h>

#include "host_doubles.h"
#include "test_outline.h"

namespace tx::test {
namespace {

using outline_ops = tx_outline_interface_32;
using column_ops = tx_string_outline_column_interface_10;

TEST(Outline, RowsAndChildrenComeFromTheModel) {
  outline_fixture f;
  const tx_custom_pointer o = f.view.pointer();
  const auto& t = ops<outline_ops>(o);
  const tx_custom_pointer scene = row(&f.scene).pointer();
  int other = 0;
  struct row_case {
    const char* what;
    tx_custom_pointer parent;
    std::int32_t index;
    const node* expected;  // null: the null pair
  };
  const row_case cases[] = {
      {"first top-level row", {}, 0, &f.scene},
      {"second top-level row", {}, 1, &f.collection},
      {"past the top level", {}, 2, nullptr},
      {"negative index", {}, -1, nullptr},
      {"child of a row", scene, 0, &f.layer},
      {"past a row's children", scene, 1, nullptr},
      {"a half-null parent is the top", {scene.table, nullptr}, 0, &f.scene},
      {"another kind of row has no children", toolkit::outline_item<int*>(&other).pointer(), 0,
       nullptr},
  };
  for (const row_case& c : cases) {
    const tx_custom_pointer r = t.row(o.object, c.parent, c.index);
    EXPECT_EQ(r.object, c.expected) << c.what;
    EXPECT_EQ(r.table == nullptr, c.expected == nullptr) << c.what;
  }
  EXPECT_EQ(t.row_count(o.object, {}), 2);
  EXPECT_EQ(t.row_count(o.object, row(&f.layer).pointer()), 0);
  f.scene.add(u"Second layer");  // read live
  EXPECT_EQ(t.row_count(o.object, scene), 2);
}

TEST(Outline, SelectedExpandedAndFaultyAreTheNodes) {
  outline_fixture f;
  const tx_custom_pointer o = f.view.pointer();
  const auto& t = ops<outline_ops>(o);
  const tx_custom_pointer layer = row(&f.layer).pointer();
  t.set_selected(o.object, layer, true);
  t.set_expanded(o.object, layer, false);
  EXPECT_TRUE(f.layer.selected && t.selected(o.object, layer));
  EXPECT_FALSE(f.layer.expanded || t.expanded(o.object, layer));

  for (const auto& [has, name, faulty] :
       {std::tuple{false, u"", false}, std::tuple{true, u"", true},
        std::tuple{true, u"New", false}}) {
    f.layer.has_new_name = has;
    f.layer.new_name = name;
    EXPECT_EQ(t.faulty(o.object, layer), faulty) << has;
  }
  // A row without content reads as nothing and takes no writes.
  t.set_selected(o.object, {}, true);
  EXPECT_FALSE(t.selected(o.object, {}) || t.expanded(o.object, {}) || t.faulty(o.object, {}));
  EXPECT_FALSE(f.top.selected);
}

TEST(Outline, StyleColumnsAndChecksAreHandedOver) {
  outline_fixture f;
  const tx_custom_pointer o = f.view.pointer();
  const auto& t = ops<outline_ops>(o);
  EXPECT_EQ(t.style(o.object), 15u);
  ASSERT_EQ(t.column_count(o.object), 2);
  element_sink columns, checks;
  for (std::int32_t i : {0, 1, 2, -1}) t.visit_column(o.object, i, columns.pointer());
  ASSERT_EQ(columns.elements.size(), 2u);
  EXPECT_TRUE(same(columns.elements[0], f.names.pointer()));
  EXPECT_TRUE(same(columns.elements[1], f.new_names.pointer()));
  t.visit_checks(o.object, checks.pointer());
  f.view.set_checks(nullptr);
  t.visit_checks(o.object, checks.pointer());
  ASSERT_EQ(checks.elements.size(), 1u);
  EXPECT_TRUE(same(checks.elements[0], f.checks.pointer()));
}

TEST(Outline, ReloadTellsTheViewRowsButUserChangesAreNotEchoed) {
  outline_fixture f;
  recording_view view;
  f.view.set_view(view.pointer());
  f.view.reload();
  ops<outline_ops>(f.view.pointer())
      .set_selected(f.view.pointer().object, row(&f.scene).pointer(), true);
  EXPECT_EQ(view.told, std::vector<std::uint32_t>{TX_CHANGED_ROWS});
}

TEST(OutlineColumns, CellsAnswerPerRow) {
  outline_fixture f;
  f.layer.has_new_name = true;
  f.layer.new_name = u"Roads";
  f.layer.changed_last = true;
  const tx_custom_pointer old_names = f.names.pointer(), new_names = f.new_names.pointer();
  struct cell_case {
    const char* what;
    tx_custom_pointer column;
    node* at;
    const char16_t* text;  // null: no text
    bool editable;
    bool emphasized;
  };
  const cell_case cases[] = {
      {"old name of a layer", old_names, &f.layer, u"Layer", false, false},
      {"new name of a layer", new_names, &f.layer, u"Roads", true, true},
      {"new name of a scene without one", new_names, &f.scene, u"", true, false},
      {"new name of a collection", new_names, &f.collection, u"", false, false},
      {"old name, row without content", old_names, nullptr, nullptr, false, false},
      {"new name, row without content", new_names, nullptr, nullptr, false, false},
  };
  for (const cell_case& c : cases) {
    const auto& t = ops<column_ops>(c.column);
    const tx_custom_pointer r = row(c.at).pointer();
    string_sink text;
    EXPECT_EQ(t.text(c.column.object, r, text.pointer()), c.text != nullptr) << c.what;
    EXPECT_EQ(text.texts,
              c.text ? std::vector<std::u16string>{c.text} : std::vector<std::u16string>{})
        << c.what;
    EXPECT_EQ(t.editable(c.column.object, r), c.editable) << c.what;
    EXPECT_EQ(t.emphasized(c.column.object, r), c.emphasized) << c.what;
  }
  string_sink id, header;
  EXPECT_TRUE(ops<column_ops>(new_names).id(new_names.object, id.pointer()));
  EXPECT_TRUE(ops<column_ops>(new_names).header(new_names.object, header.pointer()));
  EXPECT_EQ(id.texts, std::vector<std::u16string>{u"new"});
  EXPECT_EQ(header.texts, std::vector<std::u16string>{u"Новое имя"});
  EXPECT_EQ(ops<column_ops>(new_names).size(new_names.object), 20);
}

TEST(OutlineColumns, AnEditReachesTheModelOnlyWhereTheCellIsEditable) {
  outline_fixture f;
  int edited = 0;
  const auto connection = f.new_names.edited.connect([&] { ++edited; });
  const tx_custom_pointer c = f.new_names.pointer();
  const auto& t = ops<column_ops>(c);
  t.set_text(c.object, row(&f.layer).pointer(), u"");  // an empty name is an edit too
  EXPECT_TRUE(f.layer.has_new_name);
  EXPECT_EQ(edited, 1);
  t.set_text(c.object, row(&f.collection).pointer(), u"Nope");
  t.set_text(c.object, {}, u"Nope");
  t.set_text(c.object, row(&f.scene).pointer(), nullptr);
  EXPECT_FALSE(f.collection.has_new_name || f.scene.has_new_name);
  EXPECT_EQ(edited, 1);
}

TEST(OutlineChecks, ATickReachesTheModelAndRaisesChangedWhereTheBoxIsEnabled) {
  outline_fixture f;
  int changed = 0;
  const auto connection = f.checks.changed.connect([&] { ++changed; });
  const tx_custom_pointer c = f.checks.pointer();
  const auto& t = ops<tx_outline_checks_interface_1>(c);
  t.set_checked(c.object, row(&f.layer).pointer(), true);
  EXPECT_TRUE(f.layer.checked && t.checked(c.object, row(&f.layer).pointer()));
  EXPECT_FALSE(f.scene.checked);
  t.set_checked(c.object, {}, true);  // no box there
  EXPECT_EQ(changed, 1);
}

TEST(OutlineItem, ARowIsAHandleOnItsNode) {
  node a, b;
  const tx_custom_pointer ra = row(&a).pointer();
  const auto key = ops<tx_outline_item_interface_0>(ra).key;
  EXPECT_EQ(key(ra.object), key(row(&a).pointer().object));
  EXPECT_NE(key(ra.object), key(row(&b).pointer().object));
  EXPECT_EQ(node_of(ra), &a);
  EXPECT_FALSE(present(row().pointer()));
}

}  // namespace
}  // namespace tx::test
