# Packages for Debian: corvane, corvane-key-frame-animation and corvane-dev.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The add-on's library needs libcorvane, which no installed package knows while this is packed.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

# Each release of Debian has other libraries, so the same sources make other packages there. Their
# versions differ, and rise with the release, so that an upgrade of the system replaces them.
cmake_host_system_information(RESULT system QUERY DISTRIB_INFO)
string(REGEX REPLACE "^debian$" deb system_name "${system_ID}")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1~${system_name}${system_VERSION_ID})
set(CORVANE_DEBIAN_VERSION ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

# Each package has a line of its own above its description; cpack would put this one there too.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME corvane)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "camera flights through 3D simulation results
Corvane shows 3D simulation results, flies a camera smoothly through them,
and makes a film of it: in a window, or from a command line on a machine
without a display or a graphics card.

It reads VTK, OpenFOAM, EnSight Gold, Exodus II and CGNS data, and STL, PLY
and OBJ surfaces. It draws surfaces, slices, isosurfaces and streamtraces,
and writes pictures, and movies in MPEG-4, AVI, WMV and Flash formats.

Flights are made by the add-on in the package corvane-key-frame-animation.")
# Drawing without a display finds its driver at run time only.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "libegl-mesa0 | libegl-vendor, libgl1-mesa-dri")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "corvane-key-frame-animation, fonts-dejavu-core")
# Help pages open in a browser; windows under Wayland need a plug-in of Qt.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "qt6-wayland, xdg-utils")

set(CPACK_DEBIAN_ADD-ON_PACKAGE_NAME corvane-key-frame-animation)
set(CPACK_DEBIAN_ADD-ON_DESCRIPTION "Corvane add-on for key frame animation
Corvane shows 3D simulation results, flies a camera smoothly through them,
and makes a film of it.

This is its add-on Key Frame Animation, which captures views as key frames
and flies through them, on the screen or into a movie, while solution time
moves along and markers travel on streamtraces.")
set(CPACK_DEBIAN_ADD-ON_PACKAGE_DEPENDS "corvane (= ${CORVANE_DEBIAN_VERSION})")

set(CPACK_DEBIAN_SDK_PACKAGE_NAME corvane-dev)
set(CPACK_DEBIAN_SDK_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_SDK_DESCRIPTION "files for writing Corvane add-ons
Corvane shows 3D simulation results, flies a camera smoothly through them,
and makes a film of it.

These are headers and CMake files for writing add-ons for it, and a host in
memory to test them with, with a guide and an example.")
set(CPACK_DEBIAN_SDK_PACKAGE_DEPENDS "corvane (= ${CORVANE_DEBIAN_VERSION})")

# What Debian wants in each package beyond what is installed elsewhere. cpack puts it there.
set(CPACK_CORVANE_DEBIAN_FILES ${PROJECT_BINARY_DIR}/packaging/debian)
set(CPACK_CORVANE_DEBIAN_SOURCES ${PROJECT_SOURCE_DIR}/packaging/debian)
list(APPEND CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/CorvaneDebianFiles.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/CorvaneDebianControl.cmake)

# Packages of other add-ons that link to libcorvane need the program, this version or a later one of
# the same contract: that is what its number stands for.
get_target_property(contract libcorvane SOVERSION)
file(CONFIGURE OUTPUT ${CPACK_CORVANE_DEBIAN_FILES}/shlibs
    CONTENT "libcorvane ${contract} corvane (>= ${PROJECT_VERSION})\n")
file(CONFIGURE OUTPUT ${CPACK_CORVANE_DEBIAN_FILES}/triggers CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_CONTROL_EXTRA
    ${CPACK_CORVANE_DEBIAN_FILES}/shlibs ${CPACK_CORVANE_DEBIAN_FILES}/triggers)

# The licence as a paragraph of a copyright file: indented, with a dot on lines that are empty.
file(READ LICENSE CORVANE_LICENSE)
string(REGEX REPLACE "^.*developers\n\n" "" CORVANE_LICENSE "${CORVANE_LICENSE}")
string(STRIP "${CORVANE_LICENSE}" CORVANE_LICENSE)
string(REPLACE "\n" "\n " CORVANE_LICENSE " ${CORVANE_LICENSE}")
string(REPLACE "\n \n" "\n .\n" CORVANE_LICENSE "${CORVANE_LICENSE}")
configure_file(packaging/debian/copyright.in ${CPACK_CORVANE_DEBIAN_FILES}/copyright @ONLY)

# The day of the release at noon, in the form that Debian writes it.
execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C
    date --utc --date "${CORVANE_RELEASE_DAY} 12:00 UTC" "+%a, %d %b %Y %H:%M:%S %z"
    OUTPUT_VARIABLE CORVANE_CHANGELOG_DATE OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "^$" "unstable" CORVANE_DEBIAN_SUITE "${system_VERSION_CODENAME}")
configure_file(packaging/debian/changelog.in ${CPACK_CORVANE_DEBIAN_FILES}/changelog @ONLY)
