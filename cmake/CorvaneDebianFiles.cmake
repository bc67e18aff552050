# Run by cpack when the files of all packages are in place, before they are packed: adds to each
# package for Debian what belongs there and nowhere else. Archives stay as they are.
if(NOT CPACK_GENERATOR STREQUAL DEB)
    return()
endif()

# Without name and time, so that packages can be made again byte by byte.
function(compress file)
    execute_process(COMMAND gzip -9 --no-name --force ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(add_file from to)
    get_filename_component(folder ${to} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    configure_file(${from} ${to} COPYONLY FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

function(finish component package)
    set(share ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share)
    set(doc ${share}/doc/${package})
    add_file(${CPACK_CORVANE_DEBIAN_FILES}/copyright ${doc}/copyright)
    add_file(${CPACK_CORVANE_DEBIAN_FILES}/changelog ${doc}/changelog.Debian)
    add_file(${CPACK_CORVANE_DEBIAN_SOURCES}/../../CHANGELOG.md ${doc}/changelog)
    compress(${doc}/changelog.Debian)
    compress(${doc}/changelog)
    set(overrides ${CPACK_CORVANE_DEBIAN_SOURCES}/${package}.lintian-overrides)
    if(EXISTS ${overrides})
        add_file(${overrides} ${share}/lintian/overrides/${package})
    endif()
    file(GLOB pages ${share}/man/man*/*.[0-9])
    foreach(page IN LISTS pages)
        compress(${page})
    endforeach()
endfunction()

finish(program ${CPACK_DEBIAN_PROGRAM_PACKAGE_NAME})
finish(add-on ${CPACK_DEBIAN_ADD-ON_PACKAGE_NAME})
finish(sdk ${CPACK_DEBIAN_SDK_PACKAGE_NAME})
