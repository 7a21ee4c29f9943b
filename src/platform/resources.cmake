# tx_add_resources(<target> RC <file.rc> [EXPORTED])
#
# Gives <target> the resources that one .rc file describes, from that single source in both
# builds. On Windows windres compiles the .rc into the module. Natively a generated C++ table
# embeds the same strings (the .inc string tables the .rc includes) and the same files (its
# "<id> BITMAP|ICON|CURSOR|<type number> "<file>"" lines), byte for byte. EXPORTED: the table
# is a shared library's, exported for dlsym; otherwise it is the module's own, answered by
# tx::platform::own_resources().
set(TX_PLATFORM_DIR ${CMAKE_CURRENT_LIST_DIR} CACHE INTERNAL "the platform backend's sources")
include(${CMAKE_CURRENT_LIST_DIR}/posix/rc_manifest.cmake)

function(tx_add_resources target)
  cmake_parse_arguments(ARG "EXPORTED" "RC" "" ${ARGN})
  get_filename_component(rc ${ARG_RC} ABSOLUTE)
  get_filename_component(rc_dir ${rc} DIRECTORY)
  tx_rc_manifest(${rc} includes entries)
  set(files)
  foreach(entry IN LISTS entries)
    string(REPLACE "|" ";" parts "${entry}")
    list(GET parts 2 file)
    list(APPEND files ${file})
  endforeach()
  # A new line in the .rc may name a new file: configure again when it changes.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${rc})

  if(WIN32)
    target_sources(${target} PRIVATE ${rc})
    # windres does not report what the .rc includes or names.
    set_property(SOURCE ${rc} APPEND PROPERTY OBJECT_DEPENDS ${includes} ${files})
    # windres looks for the named files along the include path.
    set_property(SOURCE ${rc} APPEND PROPERTY INCLUDE_DIRECTORIES ${rc_dir} ${CMAKE_CURRENT_BINARY_DIR})
  else()
    # The table includes the string tables; the compiler reports those dependencies itself.
    set(table ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.cpp)
    if(ARG_EXPORTED)
      set(exported ON)
    else()
      set(exported OFF)
    endif()
    add_custom_command(OUTPUT ${table}
      COMMAND ${CMAKE_COMMAND} -DRC=${rc} -DOUTPUT=${table} -DEXPORTED=${exported}
        -P ${TX_PLATFORM_DIR}/posix/embed_resources.cmake
      DEPENDS ${rc} ${files} ${TX_PLATFORM_DIR}/posix/embed_resources.cmake
        ${TX_PLATFORM_DIR}/posix/rc_manifest.cmake
      COMMENT "Embedding the resources of ${target}"
      VERBATIM)
    target_sources(${target} PRIVATE ${table})
    target_include_directories(${target} PRIVATE ${TX_PLATFORM_DIR}/..)
    target_link_libraries(${target} PRIVATE tx_sdk)
  endif()
endfunction()
