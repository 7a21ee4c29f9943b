// The tree's two text columns as the host sees them on a real dialog: the old name is never
// typed into, the new name is, on every row that stands for a project element, and on no
// collection row. (A script types into the first editable cell, so only this sees which.)
#include <gtest/gtest.h>

#include <string>

#include "element/project_rename_widget.h"
#include "tx/toolkit/outline.h"
#include "tx_host/dialog/element_tree.h"
#include "tx_host/dialog/elements.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/project.h"

namespace tx::test {
namespace {

struct first_outline final : host::dialog::element_listener {
  void leaf(const host::dialog::element& e) override {
    if (e.kind == host::dialog::element_kind::outline && !host::present(outline)) outline = e.pair;
  }
  tx_custom_pointer outline{};
};

// Checks every row under `parent`, expanded or not; returns how many rows it saw.
int check_rows(const host::dialog::outline_reader& reader, tx_custom_pointer parent, int depth) {
  int seen = 0;
  for (std::int32_t i = 0; i < reader.row_count(parent); ++i) {
    const tx_custom_pointer row = reader.row(parent, i);
    // Collections (the top level) stand for no element; scenes, groups and layers do.
    EXPECT_FALSE(reader.editable(0, row)) << reader.caption(row);
    EXPECT_EQ(reader.editable(1, row), depth > 0) << reader.caption(row);
    seen += 1 + check_rows(reader, row, depth + 1);
  }
  return seen;
}

TEST(NameColumns, OnlyTheNewNameOfAnElementsRowIsEditable) {
  ASSERT_TRUE(tx_host_project_load(TX_EXAMPLES_DIR "/small.json")) << tx_host_project_error();
  project_rename_widget widget;
  widget.open();
  first_outline found;
  host::dialog::walk(widget.layout(), found, host::dialog::walk_scope::all);
  ASSERT_TRUE(host::present(found.outline));
  const host::dialog::outline_reader reader(found.outline);
  ASSERT_EQ(reader.columns().size(), 2u);
  EXPECT_EQ(check_rows(reader, {}, 0), 15);
}

}  // namespace
}  // namespace tx::test
