# What keeps the builds of the tests short.

# zt_compile_together(<target>): some files at a time make one unit of the compiler, so that what they share, above all the templates
# of the test framework, is compiled once for all of them. Their names must not clash: the files of a folder share its namespace.
function(zt_compile_together target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
endfunction()
