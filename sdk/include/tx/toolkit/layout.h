/* Layout elements: grids of cells, the framed group box, and the stack that shows one entry. */
#ifndef TX_TOOLKIT_LAYOUT_H
#define TX_TOOLKIT_LAYOUT_H

#include "tx/toolkit/element.h"

TX_BEGIN_DECLS

/* A grid of rows × columns cells, each empty or holding one element. The counts are fixed for
   the element's lifetime, whatever the cells hold. Rows and columns each carry two flags (the
   first: stretch to take spare room; the second: keep the content's natural size) and an
   integer (a minimum size in pixels, 0 for none); the grid carries one integer (the spacing). */
#define TX_GRID_LAYOUT_INTERFACE_91 "tx_grid_layout_interface_91"
typedef struct tx_grid_layout_interface_91 {
  tx_root_fn root;
  int32_t (*spacing)(void* self);
  int32_t (*column_count)(void* self);
  int32_t (*row_count)(void* self);
  int32_t (*reserved_4)(void* self); /* always 0 */
  int32_t (*reserved_5)(void* self); /* always 0 */
  bool (*column_stretch)(void* self, int32_t column);
  bool (*row_stretch)(void* self, int32_t row);
  int32_t (*column_minimum)(void* self, int32_t column);
  int32_t (*row_minimum)(void* self, int32_t row);
  bool (*column_natural)(void* self, int32_t column);
  bool (*row_natural)(void* self, int32_t row);
  /* Hands the element of the cell at index row + column (cells counted row by row) to a
     tx_element_visitor_interface_0; nothing for an empty cell or a position outside the grid.
     Every grid answers by this one rule, which finds the cell at (row, column) in a grid of one
     row or one column; in a grid of several rows and columns it finds another cell, so a host
     laying out such a grid asks visit_grid_cell instead. */
  void (*visit_cell)(void* self, int32_t row, int32_t column, tx_custom_pointer visitor);
  void (*set_view)(void* self, tx_custom_pointer view);
  /* The cell at (row, column) itself, index row × column count + column, in any grid: hands
     its element to a tx_element_visitor_interface_0 (nothing for an empty cell or a position
     outside the grid) and writes the number of rows and columns the element covers from that
     cell, 1 × 1 for a plain cell (a spanning element leaves the cells it covers empty); a null
     out is skipped. */
  void (*visit_grid_cell)(void* self, int32_t row, int32_t column, int32_t* rows, int32_t* columns,
                          tx_custom_pointer visitor);
} tx_grid_layout_interface_91;

/* A frame with a caption around one inner grid. */
#define TX_GROUPBOX_INTERFACE_92 "tx_groupbox_interface_92"
typedef struct tx_groupbox_interface_92 {
  tx_root_fn root;
  bool (*caption)(void* self, tx_custom_pointer visitor);
  bool (*second_text)(void* self, tx_custom_pointer visitor);
  /* Hands the inner tx_grid_layout_interface_91 to a tx_element_visitor_interface_0. */
  void (*visit_content)(void* self, tx_custom_pointer visitor);
  bool (*enabled)(void* self); /* always true */
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_groupbox_interface_92;

/* Several entries of which one is shown. */
#define TX_STACK_LAYOUT_INTERFACE_67 "tx_stack_layout_interface_67"
typedef struct tx_stack_layout_interface_67 {
  tx_root_fn root;
  int32_t (*entry_count)(void* self);
  /* The shown entry's index; outside 0 .. count - 1 shows nothing. */
  int32_t (*shown)(void* self);
  /* Hands entry `index` to a tx_element_visitor_interface_0; nothing for an empty entry. */
  void (*visit_entry)(void* self, int32_t index, tx_custom_pointer visitor);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_stack_layout_interface_67;

TX_STATIC_ASSERT(sizeof(tx_grid_layout_interface_91) == 15 * sizeof(void*), "15 slots");
TX_STATIC_ASSERT(sizeof(tx_groupbox_interface_92) == 6 * sizeof(void*), "6 slots");
TX_STATIC_ASSERT(sizeof(tx_stack_layout_interface_67) == 5 * sizeof(void*), "5 slots");

TX_END_DECLS

#endif
