# Tests, benchmarks and fuzzers.
#
#   orvex_test(<name> SOURCES <file>... [USES <target>...] [OWN_MAIN|GUI|WIDGETS] [MOC])
#       A GoogleTest program in tests/ beside bin/. Each test in it becomes a test of CTest called
#       <name>.<suite>.<test>, with the label <name>. USES as for orvex_link_rooms: rooms, or orvex::host for a test that
#       loads the module. GMock's main unless the sources have one (OWN_MAIN); GUI and WIDGETS give a main that holds a
#       QGuiApplication or a QApplication for the tests.
#       "TestPaths.h" says where the source tree and bin/ are. Each process has a temporary folder and settings of its
#       own, removed at its end, and the offscreen platform unless QT_QPA_PLATFORM says otherwise.
#
#   orvex_script_test(<name> SCRIPT <file> [ARGS <argument>...])
#       A Python script that is a test: 0 is passed.
#
#   orvex_benchmark(<name> SOURCES <file>... [USES <target>...])
#       A program for Google Benchmark, with its main, in bench/ beside bin/.
#
#   orvex_fuzzer(<name> SOURCES <file>... [USES <target>...] CORPUS <folder>...)
#       The sources define LLVMFuzzerTestOneInput. In the preset fuzz that makes a libFuzzer program in fuzz/ beside
#       bin/; elsewhere a program that plays files and folders through it. Either way a test plays CORPUS, so seeds and
#       past finds are tried on every run.

set(ORVEX_TEST_TIMEOUT 600)

if(ORVEX_BUILD_TESTS)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/generated/TestPaths.cpp CONTENT [[
#include "TestPaths.h"

namespace orvex::testing {

std::filesystem::path sourceDir() { return "@PROJECT_SOURCE_DIR@"; }
std::filesystem::path binDir() { return "@ORVEX_BIN_DIR@"; }

} // namespace orvex::testing
]] @ONLY)
    add_library(orvex_test_support OBJECT
        ${PROJECT_BINARY_DIR}/generated/TestPaths.cpp
        ${PROJECT_SOURCE_DIR}/tests/support/testProcess.cpp)
    target_include_directories(orvex_test_support PUBLIC ${PROJECT_SOURCE_DIR}/tests/support)
    add_custom_target(fuzzers)
endif()

function(orvex_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "OWN_MAIN;GUI;WIDGETS;MOC" "" "SOURCES;USES")
    orvex_refuse_rest("orvex_test(${name})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    if(NOT ORVEX_BUILD_TESTS)
        return()
    endif()
    orvex_need_targets("orvex_test(${name})" ${arg_USES})

    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests
        INSTALL_RPATH ${ORVEX_BESIDE_BIN_RPATH}
        AUTOMOC ${arg_MOC})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE orvex_test_support GTest::gmock)
    if(arg_GUI)
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/guiMain.cpp)
        target_link_libraries(${name} PRIVATE Qt5::Gui)
    elseif(arg_WIDGETS)
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/widgetsMain.cpp)
        target_link_libraries(${name} PRIVATE Qt5::Widgets)
    elseif(NOT arg_OWN_MAIN)
        target_link_libraries(${name} PRIVATE GTest::gmock_main)
    endif()
    orvex_link_rooms(${name} ${arg_USES})
    orvex_depend_on_run_time_files(${name})

    gtest_discover_tests(${name}
        TEST_PREFIX "${name}."
        DISCOVERY_TIMEOUT 120
        PROPERTIES LABELS ${name} TIMEOUT ${ORVEX_TEST_TIMEOUT})
endfunction()

function(orvex_script_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "SCRIPT" "ARGS")
    orvex_refuse_rest("orvex_script_test(${name})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    if(NOT ORVEX_BUILD_TESTS)
        return()
    endif()
    add_test(NAME ${name} COMMAND ${ORVEX_PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/${arg_SCRIPT} ${arg_ARGS})
    set_tests_properties(${name} PROPERTIES
        LABELS ${name} TIMEOUT ${ORVEX_TEST_TIMEOUT} ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endfunction()

function(orvex_benchmark name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES")
    orvex_refuse_rest("orvex_benchmark(${name})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    if(NOT ORVEX_BUILD_BENCHMARKS)
        return()
    endif()
    orvex_need_targets("orvex_benchmark(${name})" ${arg_USES})
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bench
        INSTALL_RPATH ${ORVEX_BESIDE_BIN_RPATH})
    target_link_libraries(${name} PRIVATE benchmark::benchmark_main)
    orvex_link_rooms(${name} ${arg_USES})
endfunction()

function(orvex_fuzzer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES;CORPUS")
    orvex_refuse_rest("orvex_fuzzer(${name})" "${arg_UNPARSED_ARGUMENTS}" "${arg_KEYWORDS_MISSING_VALUES}")
    if(NOT ORVEX_BUILD_TESTS)
        return()
    endif()
    orvex_need_targets("orvex_fuzzer(${name})" ${arg_USES})
    set(corpus "")
    foreach(folder IN LISTS arg_CORPUS)
        cmake_path(ABSOLUTE_PATH folder)
        list(APPEND corpus ${folder})
    endforeach()
    if(NOT corpus)
        message(FATAL_ERROR "orvex_fuzzer(${name}) needs a CORPUS")
    endif()

    add_executable(${name} ${arg_SOURCES})
    add_dependencies(fuzzers ${name})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/fuzz
        INSTALL_RPATH ${ORVEX_BESIDE_BIN_RPATH})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
    orvex_link_rooms(${name} ${arg_USES})
    if("orvex::host" IN_LIST arg_USES)
        orvex_depend_on_run_time_files(${name}) # it loads the module
    endif()
    if(ORVEX_FUZZ)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        set(play -runs=0)
    else()
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/replayMain.cpp)
        set(play "")
    endif()
    add_test(NAME ${name} COMMAND ${name} ${play} ${corpus})
    set_tests_properties(${name} PROPERTIES
        LABELS "${name};fuzz" TIMEOUT ${ORVEX_TEST_TIMEOUT} ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endfunction()
