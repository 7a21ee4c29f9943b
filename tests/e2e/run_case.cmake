# One end-to-end case: txhost runs the built plug-in on a copy of a project with a script; what
# it prints is compared with the case's expected output, and the project file afterwards with
# the expected project (or with the original, when nothing may be written).
#
# cmake -DTXHOST=… [-DEMULATOR=…] -DPLUGIN=… -DPROJECT=… -DSCRIPT=… -DLANG=ru|en [-DEXTRA=a|b]
#       -DEXPECTED_OUTPUT=… [-DEXPECTED_PROJECT=…] -DEXPECTED_EXIT=0 -DWORK=… -P run_case.cmake
# With TX_E2E_UPDATE=1 in the environment the expected files are rewritten from this run
# instead (review the difference before committing it).
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
set(project "${WORK}/project.json")
file(COPY_FILE "${PROJECT}" "${project}")
file(SHA256 "${project}" before)

string(REPLACE "|" ";" extra "${EXTRA}")
set(command ${TXHOST} project.json --plugin "${PLUGIN}" --lang ${LANG} --script "${SCRIPT}"
  ${extra})
if(EMULATOR)
  set(command ${EMULATOR} ${command})
endif()
execute_process(COMMAND ${command} WORKING_DIRECTORY "${WORK}"
  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 120)

# Both builds print the same text: line ends and the script's own path are made alike.
set(printed "${out}${err}")
string(REPLACE "\r\n" "\n" printed "${printed}")
get_filename_component(script_name "${SCRIPT}" NAME)
string(REPLACE "${SCRIPT}" "${script_name}" printed "${printed}")

if(DEFINED ENV{TX_E2E_UPDATE})
  file(WRITE "${EXPECTED_OUTPUT}" "${printed}")
  if(EXPECTED_PROJECT)
    file(COPY_FILE "${project}" "${EXPECTED_PROJECT}")
  endif()
  return()
endif()

set(failures "")
if(NOT "${status}" STREQUAL "${EXPECTED_EXIT}")
  string(APPEND failures "exit status ${status}, expected ${EXPECTED_EXIT}\n")
endif()
file(READ "${EXPECTED_OUTPUT}" expected)
if(NOT printed STREQUAL expected)
  file(WRITE "${WORK}/printed.txt" "${printed}")
  string(APPEND failures "printed text differs: diff ${EXPECTED_OUTPUT} ${WORK}/printed.txt\n")
endif()
if(EXPECTED_PROJECT)
  file(READ "${project}" written)
  file(READ "${EXPECTED_PROJECT}" wanted)
  if(NOT written STREQUAL wanted)
    string(APPEND failures "saved project differs: diff ${EXPECTED_PROJECT} ${project}\n")
  endif()
else()
  file(SHA256 "${project}" after)
  if(NOT before STREQUAL after)
    string(APPEND failures "the project file was written, but nothing may be\n")
  endif()
endif()
if(failures)
  message(FATAL_ERROR "${failures}--- printed ---\n${printed}")
endif()
