# cpack -G TGZ makes one archive that runs where nothing of what the program needs is installed.
if(NOT CORVANE_PICTURES)
    return()
endif()
add_executable(corvane_launcher packaging/bundle/launcher.c)
set_target_properties(corvane_launcher PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/packaging C_EXTENSIONS ON)
target_link_libraries(corvane_launcher PRIVATE Corvane::warnings ${CMAKE_DL_LIBS})

set(CPACK_CORVANE_BUNDLE ${PROJECT_SOURCE_DIR}/packaging/bundle/make-bundle)
set(CPACK_CORVANE_LAUNCHER ${PROJECT_BINARY_DIR}/packaging/corvane_launcher)
set(CPACK_CORVANE_MAINTAINER "${CORVANE_MAINTAINER}")
# Runs when the tree is installed and before it is packed.
list(APPEND CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/bundle/bundle.cmake)
