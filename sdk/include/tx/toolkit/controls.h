/* Controls: label, check box, drop-down list, integer input, and the text input with a
   history of earlier entries. A value the host writes (set_*) is taken as the user's: the
   element stores it and raises its own change event, without telling the view back. A value
   the plug-in changes is told to the view (TX_CHANGED_VALUE, TX_CHANGED_ITEMS). */
#ifndef TX_TOOLKIT_CONTROLS_H
#define TX_TOOLKIT_CONTROLS_H

#include "tx/toolkit/element.h"

TX_BEGIN_DECLS

#define TX_LABEL_INTERFACE_2 "tx_label_interface_2"
typedef struct tx_label_interface_2 {
  tx_root_fn root;
  bool (*text)(void* self, tx_custom_pointer visitor);
  bool (*visible)(void* self);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_label_interface_2;

#define TX_CHECKBOX_INTERFACE_2 "tx_checkbox_interface_2"
typedef struct tx_checkbox_interface_2 {
  tx_root_fn root;
  /* The text beside the box. */
  bool (*caption)(void* self, tx_custom_pointer visitor);
  /* A second text (a longer description, shown as a hint). */
  bool (*second_text)(void* self, tx_custom_pointer visitor);
  bool (*checked)(void* self);
  void (*set_checked)(void* self, bool checked);
  bool (*enabled)(void* self);
  bool (*visible)(void* self);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_checkbox_interface_2;

#define TX_DROPDOWN_INTERFACE_3 "tx_dropdown_interface_3"
typedef struct tx_dropdown_interface_3 {
  tx_root_fn root;
  /* The caption shown beside the list; false when it has none. */
  bool (*caption)(void* self, tx_custom_pointer visitor);
  int32_t (*item_count)(void* self);
  /* The text of item `index`; false outside the list. */
  bool (*item_text)(void* self, int32_t index, tx_custom_pointer visitor);
  /* The selected item's index, or -1 when none is selected. */
  int32_t (*selected)(void* self);
  /* The user chose item `index` (-1: none; an index outside the list is ignored). */
  void (*select)(void* self, int32_t index);
  bool (*enabled)(void* self);
  bool (*visible)(void* self);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_dropdown_interface_3;

#define TX_INTEGER_INPUT_INTERFACE_6 "tx_integer_input_interface_6"
typedef struct tx_integer_input_interface_6 {
  tx_root_fn root;
  bool (*caption)(void* self, tx_custom_pointer visitor);
  int32_t (*value)(void* self);
  /* The user entered `value`; it is clamped to minimum .. maximum. */
  void (*set_value)(void* self, int32_t value);
  int32_t (*minimum)(void* self);
  int32_t (*maximum)(void* self);
  bool (*enabled)(void* self);
  bool (*visible)(void* self);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_integer_input_interface_6;

#define TX_ASSISTED_INPUT_INTERFACE_3 "tx_assisted_input_interface_3"
typedef struct tx_assisted_input_interface_3 {
  tx_root_fn root;
  bool (*caption)(void* self, tx_custom_pointer visitor);
  /* The current text (possibly empty) to a tx_string_visitor_interface_0; always visits. */
  void (*text)(void* self, tx_custom_pointer visitor);
  /* The user typed or picked `text` (NUL-terminated, borrowed for the call). */
  void (*set_text)(void* self, const char16_t* text);
  /* Earlier entries offered in the input's list, most recent first. */
  int32_t (*history_count)(void* self);
  bool (*history_item)(void* self, int32_t index, tx_custom_pointer visitor);
  bool (*enabled)(void* self);
  bool (*visible)(void* self);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_assisted_input_interface_3;

TX_STATIC_ASSERT(sizeof(tx_label_interface_2) == 4 * sizeof(void*), "4 slots");
TX_STATIC_ASSERT(sizeof(tx_checkbox_interface_2) == 8 * sizeof(void*), "8 slots");
TX_STATIC_ASSERT(sizeof(tx_dropdown_interface_3) == 9 * sizeof(void*), "9 slots");
TX_STATIC_ASSERT(sizeof(tx_integer_input_interface_6) == 9 * sizeof(void*), "9 slots");
TX_STATIC_ASSERT(sizeof(tx_assisted_input_interface_3) == 9 * sizeof(void*), "9 slots");

TX_END_DECLS

#endif
