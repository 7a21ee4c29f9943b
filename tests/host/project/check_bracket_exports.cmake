# Checks which of txk_entity's optional exports a build of it has: both or neither, and every
# other export of txk_entity either way.
# Usage: cmake -DTOOL=path -DFORMAT=pe|elf -DLIBRARY=path -DEXPECT=present|absent
#          -P check_bracket_exports.cmake
# TOOL is objdump for a DLL (FORMAT pe), nm for a .so (FORMAT elf).
if(FORMAT STREQUAL "pe")
  set(arguments -p)
else()
  set(arguments -D --defined-only)
endif()
execute_process(COMMAND ${TOOL} ${arguments} ${LIBRARY} OUTPUT_VARIABLE dump RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "cannot list the exports of ${LIBRARY}")
endif()

set(always tx_entities_get_wcaption tx_entities_safe_upcast tx_entity_get_uuid
  tx_entity_storage_find_by_uid tx_entity_get_wcaption tx_entity_set_wcaption tx_uuid_hash
  tx_uuid_equal)
set(optional tx_entity_begin_update_recursive tx_entity_end_update_recursive)

# A name counts as exported when it stands alone at the end of a line of the listing.
function(exported name out)
  if(dump MATCHES "[ \t]${name}\r?\n")
    set(${out} TRUE PARENT_SCOPE)
  else()
    set(${out} FALSE PARENT_SCOPE)
  endif()
endfunction()

foreach(name IN LISTS always)
  exported(${name} found)
  if(NOT found)
    message(FATAL_ERROR "${LIBRARY} does not export ${name}")
  endif()
endforeach()
foreach(name IN LISTS optional)
  exported(${name} found)
  if(EXPECT STREQUAL "present" AND NOT found)
    message(FATAL_ERROR "${LIBRARY} does not export ${name}")
  elseif(EXPECT STREQUAL "absent" AND found)
    message(FATAL_ERROR "${LIBRARY} exports ${name}, which this build leaves out")
  endif()
endforeach()
