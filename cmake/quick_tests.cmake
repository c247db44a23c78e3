# What keeps the builds of the tests short.

# zt_add_rows(): the library zt_rows, with which tests run over tables (tests/support/rows.h).
function(zt_add_rows)
    add_library(zt_rows STATIC ${CMAKE_SOURCE_DIR}/tests/support/rows.cpp)
    target_link_libraries(zt_rows PUBLIC gtest PRIVATE zt_build_flags)
    target_compile_options(zt_rows PRIVATE -O0)
endfunction()

# zt_compile_together(<target>): some files at a time make one unit of the compiler, so that what they share, above all the templates
# of the test framework, is compiled once for all of them. Their names must not clash: the files of a folder share its namespace.
function(zt_compile_together target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
endfunction()
