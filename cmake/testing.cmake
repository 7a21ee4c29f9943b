# GoogleTest, built from the Debian source package for the target being built. Under the cross
# build every test program runs through wine-run.sh, which keeps one wineserver (and its
# desktop) alive between programs; the last test stops it.
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
include(GoogleTest)

if(CMAKE_CROSSCOMPILING)
  set(TX_WINEPREFIX ${CMAKE_BINARY_DIR}/wineprefix)
  add_executable(tx_wine_desktop_holder ${CMAKE_SOURCE_DIR}/cmake/wine_desktop_holder.c)
  target_link_libraries(tx_wine_desktop_holder PRIVATE tx_warnings)
  set(TX_DESKTOP_HOLDER ${CMAKE_BINARY_DIR}/bin/tx_wine_desktop_holder.exe)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/wine-run.sh.in ${CMAKE_BINARY_DIR}/wine-run.sh
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE
    @ONLY)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/wine-stop.sh.in ${CMAKE_BINARY_DIR}/wine-stop.sh
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE
    @ONLY)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_BINARY_DIR}/wine-run.sh)
  add_test(NAME wine_stop COMMAND ${CMAKE_BINARY_DIR}/wine-stop.sh)
  set_tests_properties(wine_stop PROPERTIES FIXTURES_CLEANUP WINE)
endif()

# tx_add_gtest(target sources... LIBRARIES libs... [PROPERTIES name value...]): one GoogleTest
# executable whose cases are discovered as separate tests, run natively or under Wine, each with
# the test properties given.
function(tx_add_gtest target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;PROPERTIES" ${ARGN})
  add_executable(${target} ${ARG_SOURCES} ${ARG_UNPARSED_ARGUMENTS})
  target_link_libraries(${target} PRIVATE GTest::gtest GTest::gtest_main tx_warnings ${ARG_LIBRARIES})
  if(CMAKE_CROSSCOMPILING)
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 120 DISCOVERY_MODE PRE_TEST
      PROPERTIES FIXTURES_REQUIRED WINE ${ARG_PROPERTIES})
  else()
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 DISCOVERY_MODE PRE_TEST
      PROPERTIES ${ARG_PROPERTIES})
  endif()
endfunction()
