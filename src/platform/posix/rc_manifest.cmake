# tx_rc_manifest(<rc> <includes_var> <entries_var>): what a .rc file holds, as the native build
# embeds it.
#   <includes_var>: the string tables it includes (#include "<name>.inc"), as absolute paths;
#   <entries_var>:  "<type>|<id>|<absolute file>" for each line "<id> <TYPE> "<file>"", where
#                   TYPE is BITMAP (2), ICON (14), CURSOR (12) or a type number.
# Paths are taken relative to the .rc's folder, as windres finds them.
function(tx_rc_manifest rc includes_var entries_var)
  get_filename_component(dir ${rc} DIRECTORY)
  file(STRINGS ${rc} lines ENCODING UTF-8)
  set(includes)
  set(entries)
  foreach(line IN LISTS lines)
    if(line MATCHES "^[ \t]*#[ \t]*include[ \t]+\"([^\"]+\\.inc)\"")
      list(APPEND includes ${dir}/${CMAKE_MATCH_1})
    elseif(line MATCHES "^[ \t]*([0-9]+)[ \t]+(BITMAP|ICON|CURSOR|[0-9]+)[ \t]+\"([^\"]+)\"")
      set(id ${CMAKE_MATCH_1})
      set(type ${CMAKE_MATCH_2})
      set(file ${dir}/${CMAKE_MATCH_3})
      if(type STREQUAL "BITMAP")
        set(type 2)
      elseif(type STREQUAL "ICON")
        set(type 14)
      elseif(type STREQUAL "CURSOR")
        set(type 12)
      endif()
      list(APPEND entries "${type}|${id}|${file}")
    endif()
  endforeach()
  set(${includes_var} ${includes} PARENT_SCOPE)
  set(${entries_var} ${entries} PARENT_SCOPE)
endfunction()
