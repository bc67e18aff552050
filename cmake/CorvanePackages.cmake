# Packages: cpack -G DEB makes one for each component, cpack -G TGZ a tree with all of them that runs
# wherever it is unpacked (CorvaneBundle).
set(CPACK_PACKAGE_NAME corvane)
set(CPACK_PACKAGE_VENDOR "The Corvane developers")
set(CPACK_PACKAGE_CONTACT "${CORVANE_MAINTAINER}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_FILE_NAME corvane-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL program add-on sdk)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)

include(CorvaneDebian)
include(CPack)
