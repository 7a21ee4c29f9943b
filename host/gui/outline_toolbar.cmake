# The window's outline (a virtual tree-list over the plug-in's rows) and toolbar controls.
target_sources(tx_host_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/src/cell_editor.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_actions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_control.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/outline_images.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/tool_picture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/toolbar_control.cpp
  ${CMAKE_CURRENT_LIST_DIR}/src/visible_rows.cpp)
# The controls' own headers, for the window and the tests.
target_include_directories(tx_host_gui PUBLIC ${CMAKE_CURRENT_LIST_DIR}/src)
