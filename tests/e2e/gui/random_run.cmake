# Random keys and clicks on the dialog window: for each series, txhost --gui runs
# `random-input COUNT SERIES` on a copy of a project. It must end by itself with status 0 (no crash;
# a hang ends it with status 3 through its own watch, and the time limit here stops a run that
# outlasts even that), and the project file afterwards must be the original byte for byte or, when
# a random Space or Enter on the accepting button committed, a whole project that txhost loads
# again and whose names differ from the original's exactly as the saved listing says.
#
# cmake -DTXHOST=… [-DEMULATOR=…] -DPLUGIN=… -DPROJECT=… -DCOUNT=N -DSERIES=a|b|… -DWORK=…
#       -P random_run.cmake
cmake_minimum_required(VERSION 3.25)

string(REPLACE "|" ";" series "${SERIES}")
set(host ${TXHOST})
if(EMULATOR)
  set(host ${EMULATOR} ${TXHOST})
endif()

# The project's elements as txhost lists them, one a line (without its own header lines).
function(list_project file out)
  execute_process(COMMAND ${host} --project "${file}" --all WORKING_DIRECTORY "${WORK}"
    OUTPUT_VARIABLE listing ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 120)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "txhost does not load ${file} again (status ${status}): ${err}")
  endif()
  string(REPLACE "\r\n" "\n" listing "${listing}")
  string(REGEX REPLACE "\n$" "" listing "${listing}")
  string(REPLACE ";" "\\;" listing "${listing}")
  string(REPLACE "\n" ";" listing "${listing}")
  set(${out} "${listing}" PARENT_SCOPE)
endfunction()

# "OLD → NEW" for every element whose caption differs between the two listings, which must
# otherwise be alike line for line.
function(renamed_between before after out)
  list(LENGTH before count)
  list(LENGTH after count_after)
  if(NOT count EQUAL count_after)
    message(FATAL_ERROR "the saved project lists ${count_after} lines, the original ${count}")
  endif()
  set(pairs "")
  math(EXPR last "${count} - 1")
  foreach(i RANGE ${last})
    list(GET before ${i} old_line)
    list(GET after ${i} new_line)
    if(old_line STREQUAL new_line)
      continue()
    endif()
    # The caption is what stands between the line's first and last quote.
    string(FIND "${old_line}" "\"" old_open)
    string(FIND "${old_line}" "\"" old_close REVERSE)
    string(FIND "${new_line}" "\"" new_open)
    string(FIND "${new_line}" "\"" new_close REVERSE)
    string(SUBSTRING "${old_line}" 0 ${old_open} old_head)
    string(SUBSTRING "${new_line}" 0 ${new_open} new_head)
    string(SUBSTRING "${old_line}" ${old_close} -1 old_tail)
    string(SUBSTRING "${new_line}" ${new_close} -1 new_tail)
    if(NOT old_head STREQUAL new_head OR NOT old_tail STREQUAL new_tail)
      message(FATAL_ERROR "the saved project changed more than a caption:\n${old_line}\n${new_line}")
    endif()
    math(EXPR old_length "${old_close} - ${old_open} - 1")
    math(EXPR new_length "${new_close} - ${new_open} - 1")
    math(EXPR old_open "${old_open} + 1")
    math(EXPR new_open "${new_open} + 1")
    string(SUBSTRING "${old_line}" ${old_open} ${old_length} old_name)
    string(SUBSTRING "${new_line}" ${new_open} ${new_length} new_name)
    list(APPEND pairs "${old_name} → ${new_name}")
  endforeach()
  list(SORT pairs)
  set(${out} "${pairs}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
file(COPY_FILE "${PROJECT}" "${WORK}/original.json")
list_project(original.json original_listing)
foreach(series IN LISTS series)
  set(project "${WORK}/project-${series}.json")
  file(COPY_FILE "${PROJECT}" "${project}")
  file(WRITE "${WORK}/random-${series}.txt" "random-input ${COUNT} ${series}\n")
  execute_process(COMMAND ${host} project-${series}.json --plugin "${PLUGIN}" --gui --all
      --script random-${series}.txt
    WORKING_DIRECTORY "${WORK}" OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status
    TIMEOUT 600)
  string(REPLACE "\r\n" "\n" out "${out}")
  file(WRITE "${WORK}/printed-${series}.txt" "${out}${err}")
  string(REGEX MATCH "random-input: [^\n]*" told "${out}")
  message(STATUS "series ${series}: ${told}")
  if(NOT status STREQUAL "0")
    message(FATAL_ERROR "series ${series}: txhost ended with status ${status}\n${err}")
  endif()
  # Nothing committed: the project byte for byte as it was. Committed: the names the listing
  # tells, each "  OLD → NEW" under "saved FILE: N names" (a name written as it was changes
  # nothing in the file).
  string(FIND "${out}" "\nsaved project-${series}.json: " at)
  if(at EQUAL -1)
    file(SHA256 "${PROJECT}" wanted)
    file(SHA256 "${project}" got)
    if(NOT got STREQUAL wanted)
      message(FATAL_ERROR "series ${series}: the project changed, but txhost tells of no save")
    endif()
    continue()
  endif()
  string(SUBSTRING "${out}" ${at} -1 saved)
  string(REGEX REPLACE "^\nsaved [^\n]*\n" "" saved "${saved}")
  string(REGEX REPLACE "\n$" "" saved "${saved}")
  string(REPLACE ";" "\\;" saved "${saved}")
  string(REPLACE "\n" ";" saved "${saved}")
  set(told_pairs "")
  foreach(line IN LISTS saved)
    string(REGEX REPLACE "^  " "" line "${line}")
    string(FIND "${line}" " → " arrow)
    string(SUBSTRING "${line}" 0 ${arrow} old_name)
    math(EXPR arrow "${arrow} + 5")  # " → " is five bytes
    string(SUBSTRING "${line}" ${arrow} -1 new_name)
    if(NOT old_name STREQUAL new_name)
      list(APPEND told_pairs "${old_name} → ${new_name}")
    endif()
  endforeach()
  list(SORT told_pairs)
  list_project(project-${series}.json saved_listing)
  renamed_between("${original_listing}" "${saved_listing}" file_pairs)
  if(NOT told_pairs STREQUAL file_pairs)
    message(FATAL_ERROR "series ${series}: the saved names are not the listing's\n"
      "listed: ${told_pairs}\nin the file: ${file_pairs}")
  endif()
endforeach()
