# Uses ccache where it is installed. Paths below the sources count relative to the build folder, so
# that build folders and checkouts share what they compile. The sloppiness is what precompiled headers
# need: their macros and times are not part of the preprocessed text.
find_program(CORVANE_CCACHE ccache)
if(CORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_C_COMPILER_LAUNCHER
        env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=true
        CCACHE_SLOPPINESS=pch_defines,time_macros ${CORVANE_CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_C_COMPILER_LAUNCHER})
endif()
