# The second compiler: clang for 64-bit Windows, on mingw-w64's headers, libstdc++ and linker.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(ZT_TOOL_PREFIX x86_64-w64-mingw32)

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-windows-gnu)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-windows-gnu)
set(CMAKE_RC_COMPILER ${ZT_TOOL_PREFIX}-windres)
set(CMAKE_DLLTOOL ${ZT_TOOL_PREFIX}-dlltool)
include(${CMAKE_CURRENT_LIST_DIR}/search_paths.cmake)

# clang does not look into the folder in which Debian keeps mingw's posix flavour of libstdc++; ask mingw's own g++ for it.
execute_process(
    COMMAND ${ZT_TOOL_PREFIX}-g++-posix -print-file-name=libstdc++.a
    OUTPUT_VARIABLE zt_libstdcxx
    OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(zt_gcc_folder ${zt_libstdcxx} DIRECTORY)
set(zt_cxx_headers ${zt_gcc_folder}/include/c++)
# Of its own accord clang would look into the headers of the machine that builds, too.
set(zt_c_headers "-nostdlibinc -isystem /usr/${ZT_TOOL_PREFIX}/include")
set(CMAKE_C_FLAGS_INIT "${zt_c_headers}")
set(CMAKE_CXX_FLAGS_INIT
    "-isystem ${zt_cxx_headers} -isystem ${zt_cxx_headers}/${ZT_TOOL_PREFIX} -isystem ${zt_cxx_headers}/backward ${zt_c_headers}")
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-pthread -L${zt_gcc_folder}")
endforeach()
