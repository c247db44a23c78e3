# The test programs: each folder below tests/ with C++ sources becomes bin/test_<folder>.exe and one ctest entry.

set(INSTALL_GTEST OFF)
set(BUILD_GMOCK ON)  # only what a test program links is built
add_subdirectory(${ZT_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)

# Here the tests of tests/engine run on live windows; on fields in memory see native_tests.cmake.
file(GLOB zt_support_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/support/*.cpp
    ${CMAKE_SOURCE_DIR}/tests/support/live/*.cpp)
list(FILTER zt_support_sources EXCLUDE REGEX "/rows\\.cpp$")
zt_add_rows()
add_library(zt_test_flags INTERFACE)
target_link_libraries(zt_test_flags INTERFACE zt_build_flags zt_rows user32 gdi32)
target_include_directories(zt_test_flags INTERFACE ${CMAKE_SOURCE_DIR}/tests)
# A customer's link must be free of warnings as well. (clang's own objects differ in size from libstdc++'s, which ld reports.)
target_link_options(zt_test_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wl,--fatal-warnings>)
# What takes the time is the library, not the tests: they are compiled quickly, the headers that all of them read once. (What
# clang leaves out of line then stands in libstdc++, too, and does not link.)
target_compile_options(zt_test_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-O0>)
add_library(zt_test_support OBJECT ${zt_support_sources})
target_link_libraries(zt_test_support PUBLIC zt_test_flags)
target_precompile_headers(zt_test_support PRIVATE <windows.h> <gtest/gtest.h> <memory> <ostream> <string> <vector>)
zt_compile_together(zt_test_support)
target_compile_options(gtest PRIVATE $<$<CXX_COMPILER_ID:GNU>:-O0>)

# zt_add_test(<name> COMMAND <program> [<argument>...]): an entry of ctest, run once under Wine with a time limit.
function(zt_add_test name)
    cmake_parse_arguments(arg "" "" "COMMAND" ${ARGN})
    add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tools/run_under_wine.sh ${arg_COMMAND}
        WORKING_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ZT_TEST_TIMEOUT})
endfunction()

# zt_add_test_program(<folder> <library>...): the test program of tests/<folder>, linked with the libraries given and, unless
# it brings its own gtest_main, with tests/support.
function(zt_add_test_program folder)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/tests/${folder}/*.rc)
    list(FILTER sources EXCLUDE REGEX "/native_|/model/modern_")  # what plays on controls in memory alone
    if(NOT sources)
        return()
    endif()
    set(program test_${folder})
    add_executable(${program} ${sources})
    target_link_libraries(${program} PRIVATE ${ARGN} zt_test_flags)
    target_precompile_headers(${program} REUSE_FROM zt_test_support)
    if(folder MATCHES "^(companions|engine|field|hostile|model|texts|win32)$")
        zt_compile_together(${program})
    endif()
    if(NOT gtest_main IN_LIST ARGN)
        target_link_libraries(${program} PRIVATE zt_test_support)
    endif()
    add_dependencies(${program} ztdecimal_dll ztshared_dll ztedit050_dll)
    zt_add_test(${folder} COMMAND $<TARGET_FILE:${program}> --gtest_brief=1)
endfunction()

file(GLOB zt_test_folders CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE ${CMAKE_SOURCE_DIR}/tests ${CMAKE_SOURCE_DIR}/tests/*)
list(REMOVE_ITEM zt_test_folders support units abi demo properties fuzz ztfield ztfield_package)
foreach(folder IN LISTS zt_test_folders)
    if(IS_DIRECTORY ${CMAKE_SOURCE_DIR}/tests/${folder})
        zt_add_test_program(${folder} ztedit050 ztshared ztdecimal)
    endif()
endforeach()
if(TARGET test_field)
    target_link_libraries(test_field PRIVATE zt_memory)
endif()
# The libraries as a customer meets them: loaded by name, so not linked here, and linked into a program in C.
zt_add_test_program(abi gtest_main version)
add_executable(abi_customer ${CMAKE_SOURCE_DIR}/tests/abi/abi_customer.c)
target_link_libraries(abi_customer PRIVATE ztedit050 ztshared ztdecimal zt_build_flags)
target_link_options(abi_customer PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wl,--fatal-warnings>)
add_dependencies(test_abi abi_customer)
# What the manual prints in C is compiled as it is printed.
add_library(zt_manual_form OBJECT ${CMAKE_SOURCE_DIR}/tests/win32/manual_form.c)
target_link_libraries(zt_manual_form PRIVATE zt_build_flags)
target_link_libraries(test_win32 PRIVATE zt_manual_form)
# The program that asks a spin of another one, as a screen reader does.
add_executable(assistive_client ${CMAKE_SOURCE_DIR}/tests/support/programs/assistive_client.cpp)
target_link_libraries(assistive_client PRIVATE zt_build_flags user32)
add_dependencies(test_win32 assistive_client)

# The program that tells what a sample's form shows, for tests/package.
add_executable(form_reader ${CMAKE_SOURCE_DIR}/tests/support/programs/form_reader.cpp)
target_link_libraries(form_reader PRIVATE zt_build_flags user32)

# A person at the demo form: real key and mouse presses, compared with what it must show and give back. One way of editing each, since a
# person takes their time: ./demo.sh and the other tests have both on both.
set(zt_demo_way)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(zt_demo_way --classic)
endif()
add_test(NAME demo COMMAND ${CMAKE_SOURCE_DIR}/tools/run_under_wine.sh
    ${CMAKE_SOURCE_DIR}/tests/demo/types_into_the_form.sh ${zt_demo_way} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/demo.exe)
set_tests_properties(demo PROPERTIES TIMEOUT 300)

# The laboratory in the same way; on one architecture, since it is the same program.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_test(NAME laboratory COMMAND ${CMAKE_SOURCE_DIR}/tools/run_under_wine.sh
        ${CMAKE_SOURCE_DIR}/tests/demo/plays_the_laboratory.sh ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/demo.exe)
    set_tests_properties(laboratory PROPERTIES TIMEOUT 300)
endif()
