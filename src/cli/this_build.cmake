# Writes the header HEADER after PATTERN, with BUILD and the commit that is built: COMMIT, or else what GIT
# says about the folder SOURCES; empty where neither knows it.
if(NOT COMMIT AND GIT AND EXISTS ${SOURCES}/.git)
  execute_process(COMMAND ${GIT} rev-parse --short=10 HEAD WORKING_DIRECTORY ${SOURCES}
    OUTPUT_VARIABLE COMMIT OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
configure_file(${PATTERN} ${HEADER} @ONLY)
