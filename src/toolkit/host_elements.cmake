# The elements whose interfaces the host's toolkit defines: outline and its columns, toolbar and
# tools, button box, docker and bitmap.
target_sources(tx_toolkit PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/bitmap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_box.cpp
  ${CMAKE_CURRENT_LIST_DIR}/docker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/outline.cpp
  ${CMAKE_CURRENT_LIST_DIR}/outline_columns.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tool.cpp
  ${CMAKE_CURRENT_LIST_DIR}/toolbar.cpp)
