# Run by cpack when packages are made: takes the scripts out of those for Debian which cpack puts into
# every package with a library. They call ldconfig, which is a matter of triggers; nothing else is in
# them, so these packages run no scripts of their own at all.
if(NOT CPACK_GENERATOR STREQUAL DEB)
    return()
endif()

foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(folder ${package}.unpacked)
    file(REMOVE_RECURSE ${folder})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
    execute_process(COMMAND dpkg-deb --root-owner-group -Zxz --build ${folder} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${folder})
endforeach()
