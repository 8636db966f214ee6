# Read by cpack when the files of the Windows package lie ready: makes the setup program of them.
find_program(MAKENSIS makensis)
if(NOT MAKENSIS)
  message(WARNING "no setup program is made: makensis (Debian's package nsis) is not installed")
  return()
endif()
include(${CMAKE_CURRENT_LIST_DIR}/SameTimes.cmake)

# What the uninstaller takes away: these files, and the folders that are empty then.
file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_TEMPORARY_DIRECTORY}/*)
list(SORT entries ORDER DESCENDING)
set(removal "")
foreach(entry IN LISTS entries)
  string(REPLACE "/" "\\" path "${entry}")
  if(IS_DIRECTORY ${CPACK_TEMPORARY_DIRECTORY}/${entry})
    string(APPEND removal "RMDir \"$INSTDIR\\${path}\"\n")
  else()
    string(APPEND removal "Delete \"$INSTDIR\\${path}\"\n")
  endif()
endforeach()
file(WRITE ${CPACK_TOPLEVEL_DIRECTORY}/remove.nsh "${removal}")

set(setup ${CPACK_TOPLEVEL_DIRECTORY}/zubrane-${CPACK_PACKAGE_VERSION}-setup.exe)
execute_process(
  COMMAND ${MAKENSIS} -V2 -NOCD -DVERSION=${CPACK_PACKAGE_VERSION} -DFILES=${CPACK_TEMPORARY_DIRECTORY} -DOUTPUT=${setup}
          -DREMOVAL=${CPACK_TOPLEVEL_DIRECTORY}/remove.nsh
          -DICON=${CPACK_ZUB_SOURCE_DIR}/art/zubrane.ico ${CMAKE_CURRENT_LIST_DIR}/setup.nsi
  RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "makensis failed")
endif()
set(CPACK_EXTERNAL_BUILT_PACKAGES ${setup})
