# Where things are installed, in three components: program, add-on, sdk.
# Folders are relative to the prefix, and the same everywhere: the program looks for its add-on and
# its help from bin/, so a tree may be moved as a whole.
set(CORVANE_INSTALL_BIN bin)
set(CORVANE_INSTALL_LIB lib)
set(CORVANE_INSTALL_INCLUDE include/corvane)
set(CORVANE_INSTALL_CMAKE lib/cmake/Corvane)
set(CORVANE_INSTALL_DATA share/corvane)
set(CORVANE_INSTALL_DOC share/doc/corvane)
# The project has no domain, so the name that catalogues of programs know it by stands under one that
# nobody can own. Once there is a domain, the new name takes its place, and the metainfo tells in
# <provides> what the old one was.
set(CORVANE_APPSTREAM_ID invalid.corvane.Corvane)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME program)

# What belongs to no folder of sources, installed from the root.
function(corvane_install_shared_files)
    install(DIRECTORY docs/help DESTINATION ${CORVANE_INSTALL_DATA} COMPONENT program)
    # Help pages show their pictures from a folder beside them.
    install(DIRECTORY docs/images DESTINATION ${CORVANE_INSTALL_DATA} COMPONENT program
        FILES_MATCHING PATTERN "dialog-*.png")
    install(FILES README.md CHANGELOG.md DESTINATION ${CORVANE_INSTALL_DOC} COMPONENT program)
    install(FILES LICENSE DESTINATION ${CORVANE_INSTALL_DOC} COMPONENT program RENAME copyright)
    install(FILES docs/tutorial.md docs/macros.md docs/raster-metafile.md
        DESTINATION ${CORVANE_INSTALL_DOC}/docs COMPONENT program)
    install(DIRECTORY docs/images DESTINATION ${CORVANE_INSTALL_DOC}/docs COMPONENT program)
    install(DIRECTORY examples/wake DESTINATION ${CORVANE_INSTALL_DOC}/examples COMPONENT program
        PATTERN gen EXCLUDE)
    install(FILES docs/corvane.1 DESTINATION share/man/man1 COMPONENT program)
    install(FILES packaging/corvane.bash-completion
        DESTINATION share/bash-completion/completions COMPONENT program RENAME corvane)
    install(FILES packaging/corvane.desktop packaging/corvane-macro.desktop
        DESTINATION share/applications COMPONENT program)
    install(FILES packaging/corvane-mime.xml
        DESTINATION share/mime/packages COMPONENT program RENAME corvane.xml)
    set(metainfo ${PROJECT_BINARY_DIR}/packaging/${CORVANE_APPSTREAM_ID}.metainfo.xml)
    configure_file(packaging/corvane.metainfo.xml.in ${metainfo} @ONLY)
    install(FILES ${metainfo} DESTINATION share/metainfo COMPONENT program)
    install(FILES packaging/corvane.svg
        DESTINATION share/icons/hicolor/scalable/apps COMPONENT program)
    install(FILES docs/writing-add-ons.md DESTINATION ${CORVANE_INSTALL_DOC}/docs COMPONENT sdk)
    install(DIRECTORY examples/add-on
        DESTINATION ${CORVANE_INSTALL_DOC}/examples COMPONENT sdk)
endfunction()

# What find_package(Corvane) reads.
function(corvane_install_package_files)
    include(CMakePackageConfigHelpers)
    set(folder ${PROJECT_BINARY_DIR}/cmake)
    configure_package_config_file(cmake/CorvaneConfig.cmake.in ${folder}/CorvaneConfig.cmake
        INSTALL_DESTINATION ${CORVANE_INSTALL_CMAKE})
    write_basic_package_version_file(${folder}/CorvaneConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${folder}/CorvaneConfig.cmake ${folder}/CorvaneConfigVersion.cmake
        DESTINATION ${CORVANE_INSTALL_CMAKE} COMPONENT sdk)
    install(EXPORT Corvane NAMESPACE Corvane:: FILE CorvaneTargets.cmake
        DESTINATION ${CORVANE_INSTALL_CMAKE} COMPONENT sdk)
endfunction()

corvane_install_shared_files()
corvane_install_package_files()
