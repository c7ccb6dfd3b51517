# Defines wqspcfg_gtest (GoogleTest with GoogleMock) and wqspcfg_gtest_main, and the way tests are run.
include_guard()
add_library(wqspcfg_gtest INTERFACE)
add_library(wqspcfg_gtest_main INTERFACE)
if(CMAKE_CROSSCOMPILING)
    set(googletest_sources /usr/src/googletest)
    if(NOT EXISTS "${googletest_sources}/CMakeLists.txt")
        message(FATAL_ERROR "${googletest_sources} is missing: install googletest")
    endif()
    set(INSTALL_GTEST OFF)
    add_subdirectory(${googletest_sources} "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
    target_link_libraries(wqspcfg_gtest INTERFACE gmock)
    target_link_libraries(wqspcfg_gtest_main INTERFACE gmock_main)
else()
    find_package(GTest REQUIRED)
    target_link_libraries(wqspcfg_gtest INTERFACE GTest::gmock)
    target_link_libraries(wqspcfg_gtest_main INTERFACE GTest::gmock_main)
endif()

# Runs a GoogleTest program as the test `name`, which leaves its results in test-results/<name>.xml. With PARTS, so many
# tests, <name>-1 and so on, run a part of it each, side by side with `ctest --parallel`. Further arguments are passed
# to the program.
function(wqspcfg_add_gtest name target)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "PARTS" "")
    set(parts 1)
    if(arg_PARTS AND NOT WIN32) # under Wine, the programs would share a registry
        set(parts ${arg_PARTS})
    endif()
    foreach(part RANGE 1 ${parts})
        set(test ${name})
        if(parts GREATER 1)
            string(APPEND test -${part})
        endif()
        math(EXPR index "${part} - 1")
        add_test(NAME ${test} COMMAND ${target} --gtest_brief=1 --gtest_output=xml:test-results/${test}.xml
                                            ${arg_UNPARSED_ARGUMENTS}
                 WORKING_DIRECTORY "${PROJECT_BINARY_DIR}")
        set_tests_properties(
            ${test}
            PROPERTIES
                TIMEOUT 900
                ENVIRONMENT
                "GTEST_TOTAL_SHARDS=${parts};GTEST_SHARD_INDEX=${index};ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1;UBSAN_OPTIONS=print_stacktrace=1;TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1"
        )
    endforeach()
endfunction()

# Builds `source`, which defines LLVMFuzzerTestOneInput, as fuzzers/<name>; the target `fuzzers` builds all of them.
# The seeds are in tests/fuzz/corpus/<name>.
function(wqspcfg_add_fuzzer name source)
    add_executable(fuzz_${name} ${source})
    wqspcfg_compile_options(fuzz_${name})
    target_link_libraries(fuzz_${name} PRIVATE wqspcfg_test_support)
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    set_target_properties(fuzz_${name} PROPERTIES OUTPUT_NAME ${name}
                                                  RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/fuzzers")
    if(NOT TARGET fuzzers)
        add_custom_target(fuzzers)
    endif()
    add_dependencies(fuzzers fuzz_${name})
endfunction()
