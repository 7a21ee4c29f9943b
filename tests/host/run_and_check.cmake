# Runs a command and checks its exit status and what it printed.
#   cmake -DEXPECT_EXIT=N [-DEXPECT_STDOUT=regex] [-DEXPECT_STDERR=regex] [-DINPUT=file]
#         -P run_and_check.cmake -- COMMAND [ARGUMENTS...]
# The regular expressions are CMake's; an unset one is not checked. INPUT is the command's
# standard input (by default it has none).
set(command "")
set(in_command FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(i RANGE 1 ${last})
  if(in_command)
    list(APPEND command "${CMAKE_ARGV${i}}")
  elseif(CMAKE_ARGV${i} STREQUAL "--")
    set(in_command TRUE)
  endif()
endforeach()
if(NOT command)
  message(FATAL_ERROR "run_and_check: no command after --")
endif()

set(input "")
if(DEFINED INPUT)
  set(input INPUT_FILE "${INPUT}")
endif()
execute_process(COMMAND ${command} ${input}
  RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)

set(problems "")
if(NOT status STREQUAL "${EXPECT_EXIT}")
  string(APPEND problems "exit status ${status}, expected ${EXPECT_EXIT}\n")
endif()
if(DEFINED EXPECT_STDOUT AND NOT out MATCHES "${EXPECT_STDOUT}")
  string(APPEND problems "stdout does not match: ${EXPECT_STDOUT}\n")
endif()
if(DEFINED EXPECT_STDERR AND NOT err MATCHES "${EXPECT_STDERR}")
  string(APPEND problems "stderr does not match: ${EXPECT_STDERR}\n")
endif()
if(problems)
  message(FATAL_ERROR "${problems}--- stdout ---\n${out}--- stderr ---\n${err}")
endif()
