/* The outline: a tree control whose rows the plug-in owns, with a column of check boxes and
   columns of text.

   A row crosses the boundary as a tx_outline_item_interface_0 pair: its object half is the
   plug-in's opaque handle on the row, valid until the outline tells its view TX_CHANGED_ROWS
   (the host then asks for the rows again); its table lets the host ask the row for its
   interface like any other object. The null pair names the outline's invisible top: its
   children are the top-level rows. A row pair that the outline did not hand out reads as a row
   without content (unselected, collapsed, no texts, read-only). The outline answers every row
   question live from the plug-in's model; the host keeps no row state of its own. */
#ifndef TX_TOOLKIT_OUTLINE_H
#define TX_TOOLKIT_OUTLINE_H

#include "tx/toolkit/element.h"

TX_BEGIN_DECLS

/* One row, as handed out by the outline. Implemented by the plug-in. */
#define TX_OUTLINE_ITEM_INTERFACE_0 "tx_outline_item_interface_0"
typedef struct tx_outline_item_interface_0 {
  tx_root_fn root;
  /* The row's key: the same row always gives the same key, no two rows of an outline share one. */
  uint64_t (*key)(void* self);
} tx_outline_item_interface_0;

/* The check boxes shown before the first text column, one per row. Implemented by the plug-in. */
#define TX_OUTLINE_CHECKS_INTERFACE_1 "tx_outline_checks_interface_1"
typedef struct tx_outline_checks_interface_1 {
  tx_root_fn root;
  /* Whether `row`'s box is ticked; false for a row without content. */
  bool (*checked)(void* self, tx_custom_pointer row);
  /* The user ticked `row`'s box (may change other rows, then told as TX_CHANGED_ROWS). */
  void (*set_checked)(void* self, tx_custom_pointer row, bool checked);
  /* Whether the user may change `row`'s box. */
  bool (*enabled)(void* self, tx_custom_pointer row);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_outline_checks_interface_1;

/* One column of text. Implemented by the plug-in. */
#define TX_STRING_OUTLINE_COLUMN_INTERFACE_10 "tx_string_outline_column_interface_10"
typedef struct tx_string_outline_column_interface_10 {
  tx_root_fn root;
  /* The column's identifier (not shown; stable across languages) to a string visitor. */
  bool (*id)(void* self, tx_custom_pointer visitor);
  /* The column's header text. */
  bool (*header)(void* self, tx_custom_pointer visitor);
  /* The column's size as the host's toolkit measures it, passed through unchanged. */
  int32_t (*size)(void* self);
  /* `row`'s cell text to a string visitor; false, calling nothing, for an empty cell. */
  bool (*text)(void* self, tx_custom_pointer row, tx_custom_pointer visitor);
  /* Whether the user may edit `row`'s cell. */
  bool (*editable)(void* self, tx_custom_pointer row);
  /* Whether `row`'s cell is drawn emphasized (how is the host's). */
  bool (*emphasized)(void* self, tx_custom_pointer row);
  /* The user edited `row`'s cell to `text` (borrowed for the call); ignored if not editable. */
  void (*set_text)(void* self, tx_custom_pointer row, const char16_t* text);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_string_outline_column_interface_10;

/* The tree control. Implemented by the plug-in. */
#define TX_OUTLINE_INTERFACE_32 "tx_outline_interface_32"
typedef struct tx_outline_interface_32 {
  tx_root_fn root;
  /* The host toolkit's style bits for the control, passed through unchanged. */
  uint32_t (*style)(void* self);
  /* The number of children of `parent` (the null pair: the number of top-level rows). */
  int32_t (*row_count)(void* self, tx_custom_pointer parent);
  /* Child `index` of `parent` (null pair: the top level); the null pair outside the rows. */
  tx_custom_pointer (*row)(void* self, tx_custom_pointer parent, int32_t index);
  bool (*selected)(void* self, tx_custom_pointer row);
  /* The user selected (true) or deselected `row`. */
  void (*set_selected)(void* self, tx_custom_pointer row, bool selected);
  bool (*expanded)(void* self, tx_custom_pointer row);
  /* The user expanded (true) or collapsed `row`. */
  void (*set_expanded)(void* self, tx_custom_pointer row, bool expanded);
  /* Whether `row` is marked as faulty (drawn as needing the user's attention). */
  bool (*faulty)(void* self, tx_custom_pointer row);
  /* The number of text columns, shown in index order after the check boxes. */
  int32_t (*column_count)(void* self);
  /* Hands text column `index` (valid while the outline lives) to an element visitor. */
  void (*visit_column)(void* self, int32_t index, tx_custom_pointer visitor);
  /* Hands the check boxes (valid while the outline lives) to an element visitor, if any. */
  void (*visit_checks)(void* self, tx_custom_pointer visitor);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_outline_interface_32;

TX_STATIC_ASSERT(sizeof(tx_outline_item_interface_0) == 2 * sizeof(void*), "2 slots");
TX_STATIC_ASSERT(sizeof(tx_outline_checks_interface_1) == 5 * sizeof(void*), "5 slots");
TX_STATIC_ASSERT(sizeof(tx_string_outline_column_interface_10) == 9 * sizeof(void*), "9 slots");
TX_STATIC_ASSERT(sizeof(tx_outline_interface_32) == 13 * sizeof(void*), "13 slots");

TX_END_DECLS

#endif
