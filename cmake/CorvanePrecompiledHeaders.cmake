# Large headers of libraries, parsed once a target instead of once a source. The compiler cache knows
# of them (see CorvaneCompilerCache): without that, each clean build would compile everything again.
# Left to GCC, since the cache handles other compilers' precompiled headers differently.
option(CORVANE_PRECOMPILE "Precompile headers of libraries" ON)

# corvane_precompile(target header...): the headers as they are included, such as <vtkNew.h>.
function(corvane_precompile target)
    if(CORVANE_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        target_precompile_headers(${target} PRIVATE ${ARGN})
        # So that the cache sees what a precompiled header holds.
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
    endif()
endfunction()

# corvane_reuse_precompiled(target other): those of another target with the same flags.
function(corvane_reuse_precompiled target other)
    if(CORVANE_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        target_precompile_headers(${target} REUSE_FROM ${other})
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
    endif()
endfunction()
