/* The toolbar: a row of tools in groups (the host draws a separator between groups), published
   by the plug-in's tool set through a tools visitor that the host implements.

   An image crosses as pixels through a tx_thrice_interleaved_bytes_visitor_interface_0 (top
   row first, three channels: blue, green, red); an image operation answers false, calling no
   visitor, when the tool has no such image or it cannot be loaded. */
#ifndef TX_TOOLKIT_TOOLBAR_H
#define TX_TOOLKIT_TOOLBAR_H

#include "tx/toolkit/element.h"

TX_BEGIN_DECLS

/* One tool that runs a command when clicked. Implemented by the plug-in. Its view, set by the
   host when it takes the tool, is the tool's state hook: it is told TX_CHANGED_STATE whenever
   enabled or visible changes, and TX_CHANGED_TEXTS or TX_CHANGED_VALUE when the texts or the
   images change. */
#define TX_ACTION_TOOL_INTERFACE_0 "tx_action_tool_interface_0"
typedef struct tx_action_tool_interface_0 {
  tx_root_fn root;
  /* The tool's picture. */
  bool (*image)(void* self, tx_custom_pointer visitor);
  /* The tool's name, shown in menus and customisation lists. */
  bool (*caption)(void* self, tx_custom_pointer visitor);
  /* The tooltip. */
  bool (*hint)(void* self, tx_custom_pointer visitor);
  /* The number of further pictures (e.g. for other sizes or states). */
  int32_t (*extra_image_count)(void* self);
  /* Further picture `index`; false outside 0 .. extra_image_count - 1. */
  bool (*extra_image)(void* self, int32_t index, tx_custom_pointer visitor);
  bool (*enabled)(void* self);
  bool (*visible)(void* self);
  /* The user clicked the tool: runs its command (which may change any element); ignored while
     the tool is disabled or hidden. */
  void (*invoke)(void* self);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_action_tool_interface_0;

/* Receives the tools of a tool set, in toolbar order. Implemented by the host. */
#define TX_TOOLS_VISITOR_INTERFACE_0 "tx_tools_visitor_interface_0"
typedef struct tx_tools_visitor_interface_0 {
  tx_root_fn root;
  /* `id`: valid during the call; `tool`: an action tool pair, valid while the tool set lives.
     Answers whether the visitor takes further tools: after false the tool set offers none. */
  bool (*visit_tool)(void* self, const char16_t* id, tx_custom_pointer tool);
  /* The tools offered next belong to a new group: the host draws a separator. */
  void (*new_group)(void* self);
} tx_tools_visitor_interface_0;

/* The tools of a toolbar. Implemented by the plug-in. */
#define TX_TOOL_SET_INTERFACE_5 "tx_tool_set_interface_5"
typedef struct tx_tool_set_interface_5 {
  tx_root_fn root;
  /* Offers every tool to a tx_tools_visitor_interface_0, group by group, in toolbar order. */
  void (*visit_tools)(void* self, tx_custom_pointer visitor);
  /* The tool published as `id` (borrowed for the call); the null pair when there is none. */
  tx_custom_pointer (*find_tool)(void* self, const char16_t* id);
} tx_tool_set_interface_5;

/* The toolbar element. Implemented by the plug-in. */
#define TX_TOOLBAR_INTERFACE_6 "tx_toolbar_interface_6"
typedef struct tx_toolbar_interface_6 {
  tx_root_fn root;
  /* The toolbar's tools: a tx_tool_set_interface_5 pair, valid while the toolbar lives. */
  tx_custom_pointer (*tool_set)(void* self);
  void (*set_view)(void* self, tx_custom_pointer view);
} tx_toolbar_interface_6;

TX_STATIC_ASSERT(sizeof(tx_action_tool_interface_0) == 10 * sizeof(void*), "10 slots");
TX_STATIC_ASSERT(sizeof(tx_tools_visitor_interface_0) == 3 * sizeof(void*), "3 slots");
TX_STATIC_ASSERT(sizeof(tx_tool_set_interface_5) == 3 * sizeof(void*), "3 slots");
TX_STATIC_ASSERT(sizeof(tx_toolbar_interface_6) == 3 * sizeof(void*), "3 slots");

TX_END_DECLS

#endif
