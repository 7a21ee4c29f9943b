# One run of tx_minimal_host: its standard output is compared with the expected text, its exit
# status with the expected one, and its standard error must hold the expected message.
#
# cmake -DHOST=… [-DEMULATOR=…] -DARGS=a|b [-DEXPECTED_OUTPUT=…] -DEXPECTED_EXIT=N
#       [-DEXPECTED_ERROR=text] -DWORK=… -P run_host.cmake
# With TX_MINIMAL_HOST_UPDATE=1 in the environment the expected output is rewritten from this
# run instead (review the difference before committing it).
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
string(REPLACE "|" ";" args "${ARGS}")
set(command ${HOST} ${args})
if(EMULATOR)
  set(command ${EMULATOR} ${command})
endif()
execute_process(COMMAND ${command} WORKING_DIRECTORY "${WORK}"
  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 120)

# Both builds print the same text: the Windows build's line ends are made alike.
string(REPLACE "\r\n" "\n" out "${out}")
string(REPLACE "\r\n" "\n" err "${err}")

if(DEFINED ENV{TX_MINIMAL_HOST_UPDATE} AND EXPECTED_OUTPUT)
  file(WRITE "${EXPECTED_OUTPUT}" "${out}")
  return()
endif()

set(failures "")
if(NOT "${status}" STREQUAL "${EXPECTED_EXIT}")
  string(APPEND failures "exit status ${status}, expected ${EXPECTED_EXIT}\n")
endif()
set(expected "")
if(EXPECTED_OUTPUT)
  file(READ "${EXPECTED_OUTPUT}" expected)
endif()
if(NOT out STREQUAL expected)
  file(WRITE "${WORK}/printed.txt" "${out}")
  if(EXPECTED_OUTPUT)
    string(APPEND failures "printed text differs: diff ${EXPECTED_OUTPUT} ${WORK}/printed.txt\n")
  else()
    string(APPEND failures "printed text, where nothing may be printed: ${WORK}/printed.txt\n")
  endif()
endif()
if(EXPECTED_ERROR)
  string(FIND "${err}" "${EXPECTED_ERROR}" at)
  if(at EQUAL -1)
    string(APPEND failures "standard error lacks \"${EXPECTED_ERROR}\"\n")
  endif()
endif()
if(failures)
  message(FATAL_ERROR "${failures}--- standard output ---\n${out}--- standard error ---\n${err}")
endif()
