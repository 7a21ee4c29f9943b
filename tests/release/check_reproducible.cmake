# Makes the release archive twice more from the build's inputs, into other folders and a little
# apart in time, and requires both to be byte for byte the build's own archive: neither the
# moment nor the folder of packing may show in the archive.
#
# cmake -DINPUTS=… -DARCHIVE=… -DPACKAGE=package.cmake -DWORK=… -P check_reproducible.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(SHA256 "${ARCHIVE}" wanted)
foreach(run IN ITEMS first second)
  execute_process(COMMAND ${CMAKE_COMMAND} -DINPUTS=${INPUTS} -DSTAGE=${WORK}/${run}/stage
    -DARCHIVE=${WORK}/${run}/release.zip -P ${PACKAGE} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "packing again failed (${status})")
  endif()
  file(SHA256 "${WORK}/${run}/release.zip" got)
  if(NOT got STREQUAL wanted)
    message(FATAL_ERROR "the ${run} packing differs from ${ARCHIVE}: compare with "
      "zipinfo -v ${WORK}/${run}/release.zip")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E sleep 1.1)
endforeach()
