# Read by cpack before each kind of package.
if(CPACK_GENERATOR STREQUAL "NSIS")
  set(CPACK_PACKAGE_FILE_NAME zubrane-${CPACK_PACKAGE_VERSION}-setup)
endif()
# The time that all packaged files carry, that of the commit, in the variable that archivers know.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND git log -1 --format=%ct
    WORKING_DIRECTORY ${CPACK_ZUB_SOURCE_DIR}
    OUTPUT_VARIABLE time
    OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(time)
    set(ENV{SOURCE_DATE_EPOCH} ${time})
  endif()
endif()
# A ZIP tells times as they are on the clock here.
set(ENV{TZ} UTC)
