# Packages: cpack -G DEB makes one for each component, cpack -G TGZ a tree with all of them that runs
# wherever it is unpacked.
set(CPACK_PACKAGE_NAME corvane)
set(CPACK_PACKAGE_VENDOR "The Corvane developers")
set(CPACK_PACKAGE_CONTACT "The Corvane developers <maintainers@corvane.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_FILE_NAME corvane-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL program add-on sdk)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The add-on's library needs libcorvane, which no installed package knows while this is packed.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME corvane)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION
    "Reads 3D simulation results, draws them with and without a window,\nand writes pictures and movies.")
# Qt finds its X11 plug-in, and drawing without a display its driver, at run time only.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "libegl-mesa0 | libegl-vendor, libgl1-mesa-dri")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS
    "corvane-key-frame-animation, qt6-qpa-plugins, fonts-dejavu-core")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS xdg-utils)

set(CPACK_DEBIAN_ADD-ON_PACKAGE_NAME corvane-key-frame-animation)
set(CPACK_COMPONENT_ADD-ON_DESCRIPTION
    "The add-on Key Frame Animation for Corvane: captures views as key frames,\nand flies smoothly through them.")
set(CPACK_DEBIAN_ADD-ON_PACKAGE_DEPENDS "corvane (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_SDK_PACKAGE_NAME corvane-dev)
set(CPACK_DEBIAN_SDK_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_SDK_DESCRIPTION
    "Headers and CMake files for writing add-ons for Corvane, with an example.")
set(CPACK_DEBIAN_SDK_PACKAGE_DEPENDS "corvane (= ${PROJECT_VERSION})")

include(CPack)
