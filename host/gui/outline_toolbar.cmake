# The window's outline (a virtual tree-list over the plug-in's rows) and toolbar controls.
target_sources(tx_host_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/src/cell_editor.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_actions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_control.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_drawing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_editing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_images.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_input.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_notifications.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_printing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_rows.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_type_ahead.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/tool_picture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/toolbar_control.cpp)
# The controls' own headers, for the window and the tests; the window's portable logic (the
# outline's shown rows, the layout arithmetic, dialog units) under them.
target_include_directories(tx_host_gui PUBLIC ${CMAKE_CURRENT_LIST_DIR}/src)
target_link_libraries(tx_host_gui PUBLIC tx_host_window_logic)
