include(GoogleTest)

# corvane_add_test(NAME name SOURCES file... [LIBS target...] [LABELS label...] [ENVIRONMENT VAR=value...]
#                  [PROPERTIES prop value...])
# Builds a GoogleTest program and registers each of its tests with CTest under "name.Suite.Test".
# LABELS defaults to "unit". Tests run in their own folder of the build tree.
function(corvane_add_test)
    cmake_parse_arguments(arg "" "NAME" "SOURCES;LIBS;LABELS;ENVIRONMENT;PROPERTIES" ${ARGN})
    if(NOT arg_LABELS)
        set(arg_LABELS unit)
    endif()
    add_executable(${arg_NAME} ${arg_SOURCES})
    target_link_libraries(${arg_NAME} PRIVATE ${arg_LIBS} GTest::gmock GTest::gtest_main Corvane::warnings)
    # Tests spend their time in what they test: optimising them costs minutes and gains nothing.
    target_compile_options(${arg_NAME} PRIVATE -O0)
    target_compile_definitions(${arg_NAME} PRIVATE
        CORVANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}" CORVANE_BINARY_DIR="${PROJECT_BINARY_DIR}")
    set_target_properties(${arg_NAME} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/tests/run)
    gtest_discover_tests(${arg_NAME} TEST_PREFIX "${arg_NAME}."
        WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/tests/run
        DISCOVERY_TIMEOUT 60
        PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300 ENVIRONMENT "${arg_ENVIRONMENT}"
            ${arg_PROPERTIES})
endfunction()
