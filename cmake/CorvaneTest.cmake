include(GoogleTest)

# What nearly every test includes, precompiled once for all of them.
set(CORVANE_TEST_HEADERS <gmock/gmock.h> <gtest/gtest.h> <functional> <memory> <sstream> <string> <vector>)

# What the sources of tests are compiled with.
function(corvane_compile_as_test target)
    target_link_libraries(${target} PRIVATE test_folders GTest::gmock GTest::gtest Corvane::warnings)
    # Tests spend their time in what they test: optimising them costs minutes and gains nothing.
    target_compile_options(${target} PRIVATE -O0)
endfunction()

if(CORVANE_TESTS)
    add_library(test_folders STATIC ${PROJECT_SOURCE_DIR}/tests/support/Folders.cpp)
    target_link_libraries(test_folders PRIVATE hostapi Corvane::warnings)
    target_compile_definitions(test_folders PRIVATE
        CORVANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}" CORVANE_BINARY_DIR="${PROJECT_BINARY_DIR}")
    # A program, since libraries are compiled with other flags than programs.
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/tests/test_headers.cpp CONTENT "int main() {}\n")
    add_executable(test_headers ${PROJECT_BINARY_DIR}/tests/test_headers.cpp)
    corvane_compile_as_test(test_headers)
    corvane_precompile(test_headers ${CORVANE_TEST_HEADERS})
endif()

# corvane_add_test(NAME name SOURCES file... [LIBS target...] [LABELS label...] [ENVIRONMENT VAR=value...]
#                  [PROPERTIES prop value...])
# Builds a GoogleTest program and registers each of its tests with CTest under "name.Suite.Test".
# LABELS defaults to "unit": tests that need neither a window nor files of pictures or movies.
# Tests run in their own folder of the build tree.
function(corvane_add_test)
    cmake_parse_arguments(arg "" "NAME" "SOURCES;LIBS;LABELS;ENVIRONMENT;PROPERTIES" ${ARGN})
    if(NOT arg_LABELS)
        set(arg_LABELS unit)
    endif()
    add_executable(${arg_NAME} ${arg_SOURCES})
    target_link_libraries(${arg_NAME} PRIVATE ${arg_LIBS} GTest::gtest_main)
    corvane_compile_as_test(${arg_NAME})
    if(gui IN_LIST arg_LIBS) # Qt asks for other flags than the other tests are compiled with
        corvane_precompile(${arg_NAME} ${CORVANE_TEST_HEADERS} <QApplication> <QWidget>)
    else()
        corvane_reuse_precompiled(${arg_NAME} test_headers)
    endif()
    set_target_properties(${arg_NAME} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/tests/run)
    gtest_discover_tests(${arg_NAME} TEST_PREFIX "${arg_NAME}."
        WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/tests/run
        DISCOVERY_TIMEOUT 60
        PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300 ENVIRONMENT "${arg_ENVIRONMENT}"
            ${arg_PROPERTIES})
endfunction()
