# Makes the release archive for Windows users from a finished Windows build:
#
#   txk_project_rename.dll        the plug-in (already stripped by its link)
#   sdk/include, sdk/def          the SDK as in the repository
#   sdk/lib/mingw, sdk/lib/msvc   import libraries of the seven host libraries
#   sdk/examples/minimal-host     the minimal host of docs/host-guide.md
#   try/                          txhost.exe and the host DLLs (stripped), samples, demo script,
#                                 try.cmd, try-en.cmd, demo.cmd
#   README.txt  CHANGELOG.md  docs/  SHA256SUMS
#
# cmake -DINPUTS=file -DSTAGE=folder -DARCHIVE=file.zip -P package.cmake
# INPUTS sets VERSION, SOURCE_DIR, PLUGIN, TXHOST, HOST_LIBRARIES (a|b|…), BIN_DIR, MINGW_LIBS,
# MSVC_LIBS and STRIP (release/CMakeLists.txt writes it for the build).
#
# The same inputs give the same bytes: every file is given one time — the date of this version's
# entry in CHANGELOG.md, midnight UTC, or SOURCE_DATE_EPOCH when the environment sets it — and the
# same permissions; the archive lists the files in sorted order, with no directory entries and no
# extra fields (uid, gid, other times), and its times are written in UTC. The PE files carry no
# link time (see mingw-w64.cmake).
cmake_minimum_required(VERSION 3.25)

if(DEFINED INPUTS)
  include("${INPUTS}")
endif()

foreach(input IN ITEMS VERSION SOURCE_DIR STAGE ARCHIVE PLUGIN TXHOST HOST_LIBRARIES BIN_DIR
    MINGW_LIBS MSVC_LIBS STRIP)
  if(NOT DEFINED ${input} OR "${${input}}" STREQUAL "")
    message(FATAL_ERROR "package.cmake: ${input} is not given")
  endif()
endforeach()
string(REPLACE "|" ";" HOST_LIBRARIES "${HOST_LIBRARIES}")

# The release's date: its entry in the changelog ("## 1.2.3 — 2026-11-24"), which must exist.
file(STRINGS "${SOURCE_DIR}/CHANGELOG.md" entry ENCODING UTF-8 REGEX "^## ${VERSION} ")
if(NOT entry MATCHES "^## [^ ]+ [^0-9]* ([0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9])")
  message(FATAL_ERROR "package.cmake: CHANGELOG.md has no entry '## ${VERSION} — YYYY-MM-DD'")
endif()
set(release_date ${CMAKE_MATCH_1})
if(DEFINED ENV{SOURCE_DATE_EPOCH} AND "$ENV{SOURCE_DATE_EPOCH}" MATCHES "^[0-9]+$")
  set(epoch $ENV{SOURCE_DATE_EPOCH})
else()
  execute_process(COMMAND date -u -d "${release_date}" +%s OUTPUT_VARIABLE epoch
    OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "package.cmake: '${release_date}' in CHANGELOG.md is not a date")
  endif()
endif()
# A zip file keeps times from 1980 on only.
if(epoch LESS 315532800)
  set(epoch 315532800)
endif()

file(REMOVE_RECURSE "${STAGE}")
file(MAKE_DIRECTORY "${STAGE}")

# copy(FROM file TO relative-path): one file into the stage.
function(copy from to)
  if(NOT EXISTS "${from}")
    message(FATAL_ERROR "package.cmake: ${from} is missing")
  endif()
  get_filename_component(folder "${STAGE}/${to}" DIRECTORY)
  file(MAKE_DIRECTORY "${folder}")
  file(COPY_FILE "${from}" "${STAGE}/${to}" ONLY_IF_DIFFERENT)
endfunction()

# Text for Windows: line ends CR LF (Notepad and cmd.exe read them best). With CONFIGURE, @VAR@
# references are replaced first.
function(copy_text from to)
  file(READ "${from}" text)
  if(ARGN STREQUAL "CONFIGURE")
    string(CONFIGURE "${text}" text @ONLY)
  endif()
  string(REPLACE "\r\n" "\n" text "${text}")
  string(REPLACE "\n" "\r\n" text "${text}")
  get_filename_component(folder "${STAGE}/${to}" DIRECTORY)
  file(MAKE_DIRECTORY "${folder}")
  file(WRITE "${STAGE}/${to}" "${text}")
endfunction()

# copy_matching(FROM folder TO relative-folder [RECURSE] [TEXT] PATTERNS globs…): every file of a
# folder that matches, and with RECURSE of its subfolders too; with TEXT as Windows text.
function(copy_matching from to)
  cmake_parse_arguments(PARSE_ARGV 2 arg "RECURSE;TEXT" "" "PATTERNS")
  set(patterns ${arg_PATTERNS})
  list(TRANSFORM patterns PREPEND "${from}/")
  if(arg_RECURSE)
    file(GLOB_RECURSE found RELATIVE "${from}" ${patterns})
  else()
    file(GLOB found RELATIVE "${from}" ${patterns})
  endif()
  foreach(file IN LISTS found)
    if(arg_TEXT)
      copy_text("${from}/${file}" "${to}/${file}")
    else()
      copy("${from}/${file}" "${to}/${file}")
    endif()
  endforeach()
endfunction()

# A program or library of the try-it kit, without its symbols.
function(copy_stripped from to)
  copy("${from}" "${to}")
  # strip writes the time into the PE header it rewrites, unless SOURCE_DATE_EPOCH names one:
  # 0, as the linker leaves it.
  execute_process(COMMAND ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0
    "${STRIP}" --strip-all "${STAGE}/${to}" RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "package.cmake: ${STRIP} failed on ${to}")
  endif()
endfunction()

# The plug-in: the one file a host needs.
copy("${PLUGIN}" txk_project_rename.dll)

# The SDK.
copy_matching("${SOURCE_DIR}/sdk/include" sdk/include RECURSE PATTERNS "*.h")
copy_matching("${SOURCE_DIR}/sdk/def" sdk/def PATTERNS "*.def")
foreach(library IN LISTS HOST_LIBRARIES)
  copy("${MINGW_LIBS}/lib${library}_import.a" sdk/lib/mingw/lib${library}.a)
  copy("${MSVC_LIBS}/${library}.lib" sdk/lib/msvc/${library}.lib)
endforeach()
copy_matching("${SOURCE_DIR}/examples/minimal-host" sdk/examples/minimal-host PATTERNS "*.c")

# The try-it kit.
copy_stripped("${TXHOST}" try/txhost.exe)
foreach(library IN LISTS HOST_LIBRARIES)
  copy_stripped("${BIN_DIR}/${library}.dll" try/${library}.dll)
endforeach()
copy_matching("${SOURCE_DIR}/examples" try/samples PATTERNS "*.json")
copy_text("${SOURCE_DIR}/examples/demo.txt" try/demo.txt)
foreach(script IN ITEMS try.cmd try-en.cmd demo.cmd)
  copy_text("${SOURCE_DIR}/release/try/${script}" try/${script})
endforeach()

# What to read.
copy_text("${SOURCE_DIR}/release/README.txt.in" README.txt CONFIGURE)
copy("${SOURCE_DIR}/CHANGELOG.md" CHANGELOG.md)
# The guides with their pictures, and the scripts of their examples, which try\txhost.exe runs.
copy_matching("${SOURCE_DIR}/docs/guide" docs/guide PATTERNS "*.md")
copy_matching("${SOURCE_DIR}/docs/guide/images" docs/guide/images PATTERNS "*.png")
copy_matching("${SOURCE_DIR}/docs/guide/examples" docs/guide/examples TEXT PATTERNS "*.txt")
foreach(page IN ITEMS host-guide.md script-format.md project-format.md performance.md)
  copy("${SOURCE_DIR}/docs/${page}" docs/${page})
endforeach()

# Every file with its SHA-256, in the order of the archive, as sha256sum writes them.
file(GLOB_RECURSE files RELATIVE "${STAGE}" "${STAGE}/*")
list(SORT files)
set(sums "")
foreach(file IN LISTS files)
  file(SHA256 "${STAGE}/${file}" sum)
  string(APPEND sums "${sum}  ${file}\n")
endforeach()
file(WRITE "${STAGE}/SHA256SUMS" "${sums}")
list(APPEND files SHA256SUMS)
list(SORT files)

# The same time and permissions on every file, then the archive in sorted order.
foreach(file IN LISTS files)
  file(CHMOD "${STAGE}/${file}" FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endforeach()
execute_process(COMMAND touch -d "@${epoch}" ${files} WORKING_DIRECTORY "${STAGE}"
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "package.cmake: cannot set the files' times")
endif()
list(JOIN files "\n" listing)
file(WRITE "${STAGE}.list" "${listing}\n")
get_filename_component(archive_folder "${ARCHIVE}" DIRECTORY)
file(MAKE_DIRECTORY "${archive_folder}")
file(REMOVE "${ARCHIVE}")
execute_process(COMMAND ${CMAKE_COMMAND} -E env TZ=UTC zip -q -X -D -9 "${ARCHIVE}" -@
  WORKING_DIRECTORY "${STAGE}" INPUT_FILE "${STAGE}.list" RESULT_VARIABLE status)
file(REMOVE "${STAGE}.list")
if(NOT status EQUAL 0)
  message(FATAL_ERROR "package.cmake: zip failed (${status})")
endif()
