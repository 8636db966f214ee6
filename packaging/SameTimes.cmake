# Read by cpack when the files of a package lie ready: gives all of them one time, and the modes of every other builder.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +)
endif()
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
