# The warnings of all our own code, as a target to link privately: Corvane::warnings.
add_library(corvane_warnings INTERFACE)
add_library(Corvane::warnings ALIAS corvane_warnings)
target_compile_options(corvane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
    # GCC 12 sees overlaps in std::string's operator+ that are not there (GCC bug 105651).
    $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<CXX_COMPILER_ID:GNU>>:-Wno-restrict>
    $<$<BOOL:${CORVANE_WERROR}>:-Werror>)
