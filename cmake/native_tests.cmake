# The tests that run on this machine, without a window: the properties of the engine, and the tests of tests/engine on fields in
# memory.

set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
add_subdirectory(${ZT_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)

target_compile_options(gtest PRIVATE -O0)
zt_add_rows()

add_library(zt_native_test_flags INTERFACE)
target_link_libraries(zt_native_test_flags INTERFACE zt_engine zt_rows)
target_include_directories(zt_native_test_flags INTERFACE ${CMAKE_SOURCE_DIR}/tests)
target_compile_definitions(zt_native_test_flags INTERFACE ZTE_SOURCE_DIR="${CMAKE_SOURCE_DIR}")

# zt_add_native_tests(<name> <file>...): the test program bin/test_<name> and its entry of ctest.
function(zt_add_native_tests name)
    add_executable(test_${name} ${ARGN})
    target_link_libraries(test_${name} PRIVATE zt_native_test_flags)
    add_test(NAME ${name} COMMAND test_${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ZT_TEST_TIMEOUT})
endfunction()

# The headers that every test reads are compiled once.
set(zt_common_headers <gtest/gtest.h> <memory> <ostream> <string> <vector>)

# The field in memory by its examples; under Wine they are played on the system's own edit control as well.
file(GLOB zt_field_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/field/*.cpp)
list(FILTER zt_field_sources EXCLUDE REGEX "real_|differential_")
zt_add_native_tests(field ${zt_field_sources})
target_link_libraries(test_field PRIVATE gtest_main)

# Functions of the engine by themselves.
file(GLOB zt_unit_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/units/*.cpp)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    list(FILTER zt_unit_sources EXCLUDE REGEX "/modern_")  # on 32 bits these are played on windows of x86
endif()
set(zt_unit_support marked_text.cpp modern_number_rows.cpp modern_rows.cpp profile.cpp values.cpp native/main.cpp native/profile_store.cpp)
list(TRANSFORM zt_unit_support PREPEND ${CMAKE_SOURCE_DIR}/tests/support/)
# The companions' functions over values, with the tests that their libraries meet under Wine.
set(zt_value_functions ztdecimal/exports.cpp ztshared/date_time.cpp ztshared/number_format.cpp ztshared/text.cpp)
list(TRANSFORM zt_value_functions PREPEND ${CMAKE_SOURCE_DIR}/companions/)
set(zt_value_tests date_time_test.cpp decimal_test.cpp number_format_test.cpp number_text_test.cpp long_decimal.cpp
    native/conventions.cpp)
list(TRANSFORM zt_value_tests PREPEND ${CMAKE_SOURCE_DIR}/tests/companions/)
set_source_files_properties(${CMAKE_SOURCE_DIR}/tests/companions/long_decimal.cpp  # pen and paper take most of the time
    PROPERTIES COMPILE_OPTIONS -O1 SKIP_PRECOMPILE_HEADERS ON)
zt_add_native_tests(units ${zt_unit_sources} ${zt_unit_support} ${zt_value_functions} ${zt_value_tests})
target_include_directories(test_units PRIVATE ${CMAKE_SOURCE_DIR}/tests/companions/native)
target_precompile_headers(test_units PRIVATE ${zt_common_headers})
zt_compile_together(test_units)

# Fields without a window, by their public functions.
file(GLOB zt_ztfield_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/ztfield/*.cpp)
add_executable(test_ztfield ${zt_ztfield_sources} ${CMAKE_SOURCE_DIR}/tests/support/marked_text.cpp)
target_link_libraries(test_ztfield PRIVATE zt_rows ztfield gtest_main)
target_include_directories(test_ztfield PRIVATE ${CMAKE_SOURCE_DIR})
add_test(NAME ztfield COMMAND test_ztfield --gtest_brief=1)
set_tests_properties(ztfield PROPERTIES TIMEOUT ${ZT_TEST_TIMEOUT})

# What the fuzzers play, on the inputs that they have found so far.
file(GLOB zt_fuzz_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/fuzz/*.cpp)
list(FILTER zt_fuzz_sources EXCLUDE REGEX "/fuzzer\\.cpp$")
add_executable(test_fuzz ${zt_fuzz_sources} ${CMAKE_SOURCE_DIR}/tests/support/currencies.cpp)
target_link_libraries(test_fuzz PRIVATE zt_engine)
add_test(NAME fuzz COMMAND test_fuzz ${CMAKE_SOURCE_DIR}/tests/fuzz/corpus)
set_tests_properties(fuzz PROPERTIES TIMEOUT ${ZT_TEST_TIMEOUT})

# Once is enough for these: on 64 bits. What 32 bits do otherwise shows in the suites above, and on windows of x86.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    # The tests that are played on live windows as well, here on fields in memory, by the engine itself and by libztfield. They are the
    # same objects: what makes a control under test is chosen when a program is linked.
    file(GLOB zt_engine_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/engine/*.cpp ${CMAKE_SOURCE_DIR}/tests/support/*.cpp)
    list(FILTER zt_engine_sources EXCLUDE REGEX "/(rows|record_view)\\.cpp$")
    add_library(zt_engine_tests OBJECT ${zt_engine_sources} ${CMAKE_SOURCE_DIR}/tests/support/native/main.cpp
        ${CMAKE_SOURCE_DIR}/tests/support/native/profile_store.cpp)
    target_link_libraries(zt_engine_tests PUBLIC zt_native_test_flags)
    target_precompile_headers(zt_engine_tests PRIVATE ${zt_common_headers})
    zt_compile_together(zt_engine_tests)
    set_source_files_properties(${CMAKE_SOURCE_DIR}/tests/support/keyboard.cpp  # has names of keys that others have as well
        PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    zt_add_native_tests(engine ${CMAKE_SOURCE_DIR}/tests/support/native/masked_edit.cpp
        ${CMAKE_SOURCE_DIR}/tests/support/native/clipboard.cpp ${CMAKE_SOURCE_DIR}/tests/support/record_view.cpp)
    target_link_libraries(test_engine PRIVATE zt_engine_tests)
    add_executable(test_engine_ztfield ${CMAKE_SOURCE_DIR}/tests/support/fields/masked_edit.cpp)
    target_link_libraries(test_engine_ztfield PRIVATE zt_native_test_flags zt_engine_tests ztfield)
    file(STRINGS ${CMAKE_SOURCE_DIR}/tests/support/fields/not_told.txt zt_not_told REGEX "^[^#]")
    list(JOIN zt_not_told ":" zt_not_told)
    add_test(NAME engine_ztfield COMMAND test_engine_ztfield --gtest_brief=1 --gtest_filter=-${zt_not_told})
    # So that a pattern too wide does not pass for a test.
    set_tests_properties(engine_ztfield PROPERTIES TIMEOUT ${ZT_TEST_TIMEOUT} PASS_REGULAR_EXPRESSION "PASSED  . [4-9][0-9][0-9][0-9] tests"
        FAIL_REGULAR_EXPRESSION "FAILED")

    # Laws over many random inputs; a sample of the law of typing stands among the tests of the engine, too.
    file(GLOB zt_property_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/properties/*.cpp)
    set(zt_property_support currencies.cpp keyboard.cpp marked_text.cpp number_law.cpp profile.cpp native/profile_store.cpp)
    list(TRANSFORM zt_property_support PREPEND ${CMAKE_SOURCE_DIR}/tests/support/)
    zt_add_native_tests(properties ${zt_property_sources} ${zt_property_support})
    target_link_libraries(test_properties PRIVATE gtest_main)
    target_compile_options(test_properties PRIVATE -O1)

    # Texts that no careful caller hands in, by every door of a control, and memory that ends before an inaccessible page.
    file(GLOB zt_text_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/texts/*.cpp)
    list(FILTER zt_text_sources EXCLUDE REGEX "/live_")
    set(zt_text_support keyboard.cpp profile.cpp values.cpp native/main.cpp native/profile_store.cpp)
    list(TRANSFORM zt_text_support PREPEND ${CMAKE_SOURCE_DIR}/tests/support/)
    zt_add_native_tests(texts ${zt_text_sources} ${zt_text_support})
    target_compile_options(test_texts PRIVATE -O1)
    zt_compile_together(test_texts)

    # Lives of controls over and over, and a heap that fails: small here, large by soak.sh. All memory passes through the tests' gate.
    file(GLOB zt_soak_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/soak/*.cpp)
    list(FILTER zt_soak_sources EXCLUDE REGEX "/live_")
    set(zt_soak_support keyboard.cpp profile.cpp native/main.cpp native/profile_store.cpp)
    list(TRANSFORM zt_soak_support PREPEND ${CMAKE_SOURCE_DIR}/tests/support/)
    zt_add_native_tests(soak ${zt_soak_sources} ${zt_soak_support})
    zt_compile_together(test_soak)
    target_link_options(test_soak PRIVATE -Wl,--wrap=malloc,--wrap=realloc,--wrap=free)
endif()

# The page of the manual that the keystroke tables of the tests give, and the tables for those who play them in a browser.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(zt_row_sources classic_rows.cpp modern_number_rows.cpp modern_rows.cpp)
    list(TRANSFORM zt_row_sources PREPEND ${CMAKE_SOURCE_DIR}/tests/support/)
    add_library(zt_keystroke_rows OBJECT ${zt_row_sources})
    target_link_libraries(zt_keystroke_rows PUBLIC zt_build_flags)
    target_include_directories(zt_keystroke_rows SYSTEM PUBLIC ${ZT_GOOGLETEST_DIR}/googletest/include)  # they are tests' rows
    foreach(program write_keystrokes write_rows)
        add_executable(${program} ${CMAKE_SOURCE_DIR}/tests/support/programs/${program}.cpp)
        target_link_libraries(${program} PRIVATE zt_keystroke_rows)
    endforeach()
    add_test(NAME keystrokes_page COMMAND write_keystrokes --check ${CMAKE_SOURCE_DIR}/docs/manual/keystrokes.md)
endif()

# The engine against an independent reading of its rules, over a million random keys, pastes, values and steps. The model itself
# takes the time, so once is enough.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    file(GLOB zt_model_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/model/*.cpp)
    list(FILTER zt_model_sources EXCLUDE REGEX "/live_")
    zt_add_native_tests(model ${zt_model_sources} ${CMAKE_SOURCE_DIR}/tests/support/keyboard.cpp)
    target_link_libraries(test_model PRIVATE gtest_main)
    target_compile_options(test_model PRIVATE -O1)
    zt_compile_together(test_model)
endif()

# What the bindings of other languages declare, against the headers and what compilers for Windows make of them.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    find_program(ZT_PYTHON python3 REQUIRED)
    add_test(NAME bindings_declarations COMMAND ${ZT_PYTHON} -B ${CMAKE_SOURCE_DIR}/tests/bindings/check_declarations.py)
    add_test(NAME bindings_python COMMAND ${ZT_PYTHON} -B ${CMAKE_SOURCE_DIR}/tests/bindings/python_binding_test.py)
    add_test(NAME bindings_ztfield_man_page COMMAND ${ZT_PYTHON} -B ${CMAKE_SOURCE_DIR}/tests/bindings/ztfield_man_page_test.py)
    include(cmake/field_python_test.cmake)
endif()

add_test(NAME includes COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${CMAKE_SOURCE_DIR}
    -P ${CMAKE_SOURCE_DIR}/cmake/check_includes.cmake)
add_test(NAME lines COMMAND ${CMAKE_SOURCE_DIR}/tools/check_lines.sh WORKING_DIRECTORY ${CMAKE_SOURCE_DIR})
