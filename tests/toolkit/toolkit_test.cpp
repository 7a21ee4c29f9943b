// The toolkit's own rules: layouts, controls, histories, change notifications and events.
#include <gtest/gtest.h>

#include "host_doubles.h"
#include "toolkit/assisted_input.h"
#include "toolkit/checkbox.h"
#include "toolkit/dropdown.h"
#include "toolkit/grid_layout.h"
#include "toolkit/groupbox.h"
#include "toolkit/label.h"
#include "toolkit/labeled_element.h"
#include "toolkit/numeric_input.h"
#include "toolkit/stack_layout.h"

namespace tx::toolkit {
namespace {

using test::ops;

TEST(GridLayout, TwoByOneReportsItsShapeAndVisitsOnlyItsFilledCells) {
  grid_layout<2, 1> grid;
  label only(10);
  grid.set_cell(1, only.pointer());
  const custom_pointer g = grid.pointer();
  const auto& t = ops<tx_grid_layout_interface_91>(g);
  EXPECT_EQ(t.row_count(g.object), 2);
  EXPECT_EQ(t.column_count(g.object), 1);
  test::element_sink sink;
  // An empty cell and cells outside the grid call no visitor.
  for (auto [r, c] :
       {std::pair{0, 0}, std::pair{2, 0}, std::pair{-1, 0}, std::pair{0, 1}, std::pair{1, 0}}) {
    t.visit_cell(g.object, r, c, sink.pointer());
  }
  ASSERT_EQ(sink.elements.size(), 1u);
  EXPECT_EQ(sink.elements[0].object, only.pointer().object);
  EXPECT_EQ(t.reserved_4(g.object), 0);
  EXPECT_EQ(t.reserved_5(g.object), 0);
}

TEST(GridLayout, PlacingAnAbsentElementLeavesItsCellEmptyAndAdvances) {
  grid_layout<1, 3> row;
  label a(10), c(10);
  EXPECT_EQ(row.place(a.pointer()), 0);
  EXPECT_EQ(row.place({}), 1);
  EXPECT_EQ(row.place(c.pointer()), 2);
  EXPECT_EQ(row.place(a.pointer()), -1);
  EXPECT_FALSE(present(row.cell(1)));
  EXPECT_EQ(row.cell(2).object, c.pointer().object);
}

TEST(GridSpanLayout, ASpanningElementCoversTheRestOfItsRowOrColumn) {
  label e(10);
  struct fill_case {
    bool column_first;
    std::vector<int> indexes;  // of a spanning element, then a plain one
    std::pair<int, int> span;
  };
  for (const fill_case& f : {fill_case{false, {0, 2}, {1, 2}}, fill_case{true, {0, 1}, {3, 1}}}) {
    grid_span_layout<3, 2> grid;
    grid.set_column_first(f.column_first);
    std::vector<int> used;
    used.push_back(grid.place_spanning(e.pointer()));
    used.push_back(grid.place_next(e.pointer()));
    EXPECT_EQ(used, f.indexes) << f.column_first;
    EXPECT_EQ(grid.span_of(0, 0), f.span) << f.column_first;
    EXPECT_EQ(grid.span_of(used[1] / 2, used[1] % 2), (std::pair{1, 1})) << f.column_first;
  }
}

// Visit cell takes index row + column in every grid, span grids included; visit grid cell takes
// the true cell, row × columns + column, with its span.
TEST(GridSpanLayout, VisitCellAddsRowAndColumnVisitGridCellFindsTheTrueCell) {
  grid_span_layout<3, 2> grid;
  std::vector<std::unique_ptr<label>> labels;
  for (int i = 0; i < 6; ++i) {
    labels.push_back(std::make_unique<label>(10));
    grid.place_next(labels.back()->pointer());
  }
  const custom_pointer g = grid.pointer();
  const auto& t = ops<tx_grid_layout_interface_91>(g);
  for (const auto& [r, c] : {std::pair{0, 1}, std::pair{1, 0}, std::pair{1, 1}, std::pair{2, 1}}) {
    test::element_sink by_sum, by_cell;
    t.visit_cell(g.object, r, c, by_sum.pointer());
    std::int32_t rows = 0, columns = 0;
    t.visit_grid_cell(g.object, r, c, &rows, &columns, by_cell.pointer());
    ASSERT_EQ(by_sum.elements.size(), 1u);
    ASSERT_EQ(by_cell.elements.size(), 1u);
    EXPECT_EQ(by_sum.elements[0].object, labels[static_cast<std::size_t>(r + c)]->pointer().object);
    EXPECT_EQ(by_cell.elements[0].object,
              labels[static_cast<std::size_t>(r * 2 + c)]->pointer().object);
    EXPECT_EQ(std::pair(rows, columns), std::pair(1, 1));
  }
  test::element_sink outside;
  t.visit_grid_cell(g.object, 3, 0, nullptr, nullptr, outside.pointer());
  EXPECT_TRUE(outside.elements.empty());
}

// The caption and the content are what the end-to-end cases print; the second text is not.
TEST(Groupbox, ASecondTextOfZeroIsAbsent) {
  groupbox<1, 1> box(125);
  const custom_pointer b = box.pointer();
  test::string_sink texts;
  EXPECT_FALSE(ops<tx_groupbox_interface_92>(b).second_text(b.object, texts.pointer()));
  EXPECT_TRUE(texts.texts.empty());
}

TEST(StackLayout, ShownChangeIsToldOnlyWhenItChanges) {
  stack_layout_ex stack;
  test::recording_view view;
  stack.set_view(view.pointer());
  stack.add({});
  view.told.clear();
  stack.set_shown(0);
  stack.set_shown(2);
  stack.set_shown(2);
  EXPECT_EQ(view.told, std::vector<std::uint32_t>{TX_CHANGED_LAYOUT});
  EXPECT_EQ(stack.shown(), 2);
}

TEST(Controls, TheUsersValueRaisesChangedButIsNotToldBack) {
  assisted_input input(151);
  test::recording_view view;
  input.set_view(view.pointer());
  int raised = 0;
  const auto connection = input.changed.connect([&] { ++raised; });
  const custom_pointer p = input.pointer();
  ops<tx_assisted_input_interface_3>(p).set_text(p.object, u"road");
  ops<tx_assisted_input_interface_3>(p).set_text(p.object, u"road");
  EXPECT_EQ(input.value(), u"road");
  EXPECT_EQ(raised, 1);
  EXPECT_TRUE(view.told.empty());
  input.assign_text(u"");
  EXPECT_EQ(raised, 2);
  EXPECT_EQ(view.told, std::vector<std::uint32_t>{TX_CHANGED_VALUE});
}

TEST(AssistedInput, RememberMovesAnEqualEntryToTheFront) {
  assisted_input input;
  test::recording_view view;
  input.set_view(view.pointer());
  for (const char16_t* entry : {u"a", u"b", u"A", u"a", u""}) input.remember(entry);
  EXPECT_EQ(input.history(), (std::vector<std::u16string>{u"", u"a", u"A", u"b"}));
  EXPECT_EQ(view.told.size(), 5u);
  test::string_sink item;
  const custom_pointer p = input.pointer();
  const auto& t = ops<tx_assisted_input_interface_3>(p);
  EXPECT_EQ(t.history_count(p.object), 4);
  EXPECT_TRUE(t.history_item(p.object, 2, item.pointer()));
  EXPECT_FALSE(t.history_item(p.object, 4, item.pointer()));
  EXPECT_EQ(item.texts, std::vector<std::u16string>{u"A"});
}

enum class mode { zero, one, two };

TEST(Dropdown, SelectionAndValues) {
  detail::labeled_element<dropdownex<mode>> list(160);
  list.add_item(155, mode::two);
  list.add_item(156, mode::zero);
  EXPECT_FALSE(list.value().has_value());
  const custom_pointer p = list.pointer();
  const auto& t = ops<tx_dropdown_interface_3>(p);
  t.select(p.object, 1);
  EXPECT_EQ(list.value(), mode::zero);
  t.select(p.object, 2);  // outside the list: ignored
  t.select(p.object, -7);
  EXPECT_EQ(t.selected(p.object), 1);
  EXPECT_TRUE(list.select_value(mode::two));
  EXPECT_EQ(t.selected(p.object), 0);
  EXPECT_FALSE(list.select_value(mode::one));
  t.select(p.object, -1);
  EXPECT_FALSE(list.value().has_value());
  // The caption and the item texts are what the end-to-end cases print; past the last item there
  // is none.
  test::string_sink texts;
  EXPECT_FALSE(t.item_text(p.object, 2, texts.pointer()));
  EXPECT_TRUE(texts.texts.empty());
}

TEST(NumericInput, TheUsersValueIsKeptWithinTheBounds) {
  numeric_input<int> n(230);
  n.set_bounds(0, 100);
  const custom_pointer p = n.pointer();
  const auto& t = ops<tx_integer_input_interface_6>(p);
  t.set_value(p.object, 250);
  EXPECT_EQ(t.value(p.object), 100);
  t.set_value(p.object, -3);
  EXPECT_EQ(n.current(), 0);
}

TEST(Event, ConnectionsMayEndBeforeOrAfterTheEvent) {
  auto signal = std::make_unique<event<void()>>();
  int a = 0, b = 0;
  auto first = signal->connect([&] { ++a; });
  events::connection second;
  second = signal->connect([&] {
    ++b;
    first.reset();  // an observer may end another's subscription while the signal runs
  });
  (*signal)();
  (*signal)();
  EXPECT_EQ(a, 1);
  EXPECT_EQ(b, 2);
  EXPECT_EQ(signal->observer_count(), 1u);
  signal.reset();  // the event goes first: the connection outlives it harmlessly
  EXPECT_FALSE(second->connected());
  second->disconnect();
}

}  // namespace
}  // namespace tx::toolkit
