# Fails unless the add-on's library defines exactly one dynamic symbol, its entry point.
#   cmake -DNM=nm -DLIBRARY=libKeyFrameAnimation.so -P OneExport.cmake
execute_process(
    COMMAND ${NM} --dynamic --defined-only --format=posix ${LIBRARY}
    OUTPUT_VARIABLE listing
    COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${listing}")
list(LENGTH lines count)
if(NOT count EQUAL 1 OR NOT lines MATCHES "^InitCorAddOn113 T ")
    message(FATAL_ERROR "Expected InitCorAddOn113 alone, found ${count}:\n${listing}")
endif()
