# What every target of the project shares.
add_library(morvane_options INTERFACE)
target_compile_options(morvane_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
# Recoloured pixels are compared byte for byte with the plain arithmetic: no fused or reordered operations.
target_compile_options(morvane_options INTERFACE -ffp-contract=off)
target_compile_definitions(morvane_options INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS)

# morvane_test_target(TARGET GROUP): what the targets of tests share. They are compiled more often than they run.
function(morvane_test_target target group)
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O0>)
    morvane_precompile(${target} ${group})
endfunction()

# The project's folder as the tests are told of it; where they run under Wine, the machine's root is a drive.
set(morvane_test_root ${CMAKE_SOURCE_DIR})
set(morvane_test_programs ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
if(CMAKE_CROSSCOMPILING)
    string(PREPEND morvane_test_root Z:)
    string(PREPEND morvane_test_programs Z:)
endif()

# morvane_whole_test(NAME): the program as one test of ctest.
function(morvane_whole_test name)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()

# Of one case; the longest takes 35 s, and 12 minutes under the thread sanitizer beside other work.
set(morvane_case_seconds 300)
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    set(morvane_case_seconds 1800)
endif()

# morvane_cases(NAME): each case a test of ctest; under Wine a start takes longer than most cases do.
function(morvane_cases name)
    if(CMAKE_CROSSCOMPILING)
        morvane_whole_test(${name})
    else()
        gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT ${morvane_case_seconds})
    endif()
endfunction()

# morvane_test(NAME FILES...): one GoogleTest program for one folder of tests.
function(morvane_test name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE morvane_test_support)
    morvane_test_target(${name} test)
    morvane_cases(${name})
endfunction()

# morvane_bench(NAME FILES...): one Google Benchmark program.
function(morvane_bench name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE morvane_app benchmark::benchmark_main)
    morvane_precompile(${name} engine)
endfunction()

# morvane_ui_test(NAME FILES...): the same for tests that show widgets, on a platform without a display.
function(morvane_ui_test name)
    add_executable(${name} ${ARGN} ${CMAKE_SOURCE_DIR}/tests/support/ui_main.cpp)
    target_link_libraries(${name} PRIVATE morvane_window morvane_font morvane_test_support Qt6::Test)
    morvane_test_target(${name} window_test)
    morvane_cases(${name})
endfunction()
