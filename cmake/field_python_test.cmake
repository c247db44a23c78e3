# The Python binding of libztfield, on the library as it is tested. What watches a library must be there before the program that loads it;
# clang has no such part by default.
if(ZT_SANITIZE AND NOT CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    return()
endif()
set(zt_python_environment ZTFIELD_LIBRARY=$<TARGET_FILE:ztfield>)
if(ZT_SANITIZE)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libasan.so OUTPUT_VARIABLE zt_watcher OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    # The interpreter gives not all back at its end.
    list(APPEND zt_python_environment LD_PRELOAD=${zt_watcher} ASAN_OPTIONS=detect_leaks=0)
endif()

# zt_add_field_python_test(<name> <argument>...): ctest's bindings_<name>, tests/bindings/<name>_test.py with the library.
function(zt_add_field_python_test name)
    add_test(NAME bindings_${name} COMMAND ${CMAKE_COMMAND} -E env ${zt_python_environment} ${ZT_PYTHON} -B
        ${CMAKE_SOURCE_DIR}/tests/bindings/${name}_test.py ${ARGN})
    set_tests_properties(bindings_${name} PROPERTIES TIMEOUT ${ZT_TEST_TIMEOUT})
endfunction()
zt_add_field_python_test(ztfield_python)

# The keystroke tables, as they are played in a browser.
set(zt_rows_file ${CMAKE_BINARY_DIR}/rows.json)
add_test(NAME bindings_ztfield_rows_written COMMAND write_rows ${zt_rows_file})
zt_add_field_python_test(ztfield_rows ${zt_rows_file})
set_tests_properties(bindings_ztfield_rows_written PROPERTIES FIXTURES_SETUP zt_rows_file)
set_tests_properties(bindings_ztfield_rows PROPERTIES FIXTURES_REQUIRED zt_rows_file)
