# Run by cpack on the installed tree: makes that of the archive independent of the system.
if(NOT CPACK_GENERATOR STREQUAL "TGZ")
    return()
endif()
execute_process(
    COMMAND ${CPACK_CORVANE_BUNDLE} ${CPACK_TEMPORARY_INSTALL_DIRECTORY} ${CPACK_CORVANE_LAUNCHER}
        ${CPACK_CORVANE_MAINTAINER}
    COMMAND_ERROR_IS_FATAL ANY)
