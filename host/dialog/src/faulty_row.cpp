#include "tx_host/dialog/faulty_row.h"

#include <vector>

#include "tx/toolkit/outline.h"
#include "tx_host/dialog/limits.h"
#include "tx_host/dialog/outline_reader.h"
#include "tx_host/services/interface_object.h"

namespace tx::host::dialog {
namespace {

// The first faulty row under `parent` (depth first), with the rows above it after `path`'s.
bool find_faulty(const outline_reader& reader, tx_custom_pointer parent,
                 std::vector<tx_custom_pointer>& path) {
  if (path.size() >= limits::row_depth) return false;
  const std::int32_t count = bounded_count(reader.row_count(parent));
  for (std::int32_t i = 0; i < count; ++i) {
    const tx_custom_pointer row = reader.row(parent, i);
    if (!present(row)) continue;
    path.push_back(row);
    if (reader.faulty(row) || find_faulty(reader, row, path)) return true;
    path.pop_back();
  }
  return false;
}

// Takes every selected row under `parent` but `keep` out of the selection.
void deselect_all_but(const outline_reader& reader, tx_custom_pointer parent,
                      tx_custom_pointer keep, std::size_t depth) {
  if (depth >= limits::row_depth) return;
  const std::int32_t count = bounded_count(reader.row_count(parent));
  for (std::int32_t i = 0; i < count; ++i) {
    const tx_custom_pointer row = reader.row(parent, i);
    if (!present(row)) continue;
    if (row.object != keep.object && reader.selected(row)) {
      call(reader.outline(), &tx_outline_interface_32::set_selected, row, false);
    }
    deselect_all_but(reader, row, keep, depth + 1);
  }
}

}  // namespace

tx_custom_pointer select_first_faulty(tx_custom_pointer outline) {
  const outline_reader reader(outline);
  std::vector<tx_custom_pointer> path;
  if (!find_faulty(reader, tx_custom_pointer{}, path)) return {};
  const tx_custom_pointer faulty = path.back();
  path.pop_back();
  for (const tx_custom_pointer above : path) {
    if (!reader.expanded(above)) call(outline, &tx_outline_interface_32::set_expanded, above, true);
  }
  deselect_all_but(reader, tx_custom_pointer{}, faulty, 0);
  if (!reader.selected(faulty)) call(outline, &tx_outline_interface_32::set_selected, faulty, true);
  return faulty;
}

}  // namespace tx::host::dialog
