# zt_add_library: one of the three DLLs, from the sources of some folders.

# zt_read_windows_once(<target>): the system's header, which takes longer to read than most files to compile, is read once for all
# targets of this. The second compiler reads it in every file, so that each names what it needs.
function(zt_read_windows_once target)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        return()
    endif()
    get_property(reader GLOBAL PROPERTY zt_windows_reader)
    if(reader)
        target_precompile_headers(${target} REUSE_FROM ${reader})
    else()
        target_precompile_headers(${target} PRIVATE <windows.h>)
        set_property(GLOBAL PROPERTY zt_windows_reader ${target})
    endif()
endfunction()

# zt_add_library(<name> FOLDERS <folder>... [STATIC <static library>...] LINK <library>...)
#
# Makes of the folders' sources
#   <name>_objects      the object files of its folders
#   <name>_dll          bin/<name>.dll, exporting what <name>.def lists, under undecorated names
#   <name>              the import library lib/lib<name>.dll.a, what a customer links: link this target to use the DLL
# The .def and .rc file stand in the first folder. The import library is made from the object files and the .def file, not by
# the linker: ld's own would know a stdcall function of the .def file by its plain name only, so that no 32-bit caller that
# includes the header could link.
function(zt_add_library name)
    cmake_parse_arguments(arg "" "" "FOLDERS;STATIC;LINK" ${ARGN})
    list(GET arg_FOLDERS 0 main_folder)
    set(def ${CMAKE_SOURCE_DIR}/${main_folder}/${name}.def)
    set(rc ${CMAKE_SOURCE_DIR}/${main_folder}/${name}.rc)
    set(sources)
    foreach(folder IN LISTS arg_FOLDERS)
        file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
        list(APPEND sources ${found})
    endforeach()
    add_library(${name}_objects OBJECT ${sources})
    target_link_libraries(${name}_objects PUBLIC zt_build_flags)
    zt_read_windows_once(${name}_objects)

    if(NOT MINGW)  # a linker that pairs plain names with decorated functions by itself, in the import library too
        add_library(${name}_dll SHARED ${def} ${rc})
        target_link_libraries(${name}_dll PRIVATE ${name}_objects ${arg_STATIC} ${arg_LINK})
        set_target_properties(${name}_dll PROPERTIES OUTPUT_NAME ${name} PREFIX "")
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE ${name}_dll)
        target_include_directories(${name} INTERFACE ${CMAKE_SOURCE_DIR}/include)
        return()
    endif()
    set(import_library ${CMAKE_ARCHIVE_OUTPUT_DIRECTORY}/lib${name}.dll.a)
    add_custom_command(
        OUTPUT ${import_library}
        COMMAND ${CMAKE_COMMAND}
            -DDEF=${def} -DOUTPUT=${import_library} -DDLLTOOL=${CMAKE_DLLTOOL} -DNM=${CMAKE_NM}
            -DPROCESSOR=${CMAKE_SYSTEM_PROCESSOR} "-DOBJECTS=$<JOIN:$<TARGET_OBJECTS:${name}_objects>,$<SEMICOLON>>"
            -P ${CMAKE_SOURCE_DIR}/cmake/make_import_library.cmake
        DEPENDS ${def} ${name}_objects $<TARGET_OBJECTS:${name}_objects>
            ${CMAKE_SOURCE_DIR}/cmake/make_import_library.cmake
        COMMENT "Making the import library of ${name}.dll"
        VERBATIM)
    add_custom_target(${name}_import_library ALL DEPENDS ${import_library})
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${import_library})
    target_include_directories(${name} INTERFACE ${CMAKE_SOURCE_DIR}/include)
    add_dependencies(${name} ${name}_import_library)

    add_library(${name}_dll SHARED ${def} ${rc})
    target_link_libraries(${name}_dll PRIVATE ${name}_objects ${arg_STATIC} ${arg_LINK})
    set_target_properties(${name}_dll PROPERTIES
        LINKER_LANGUAGE CXX OUTPUT_NAME ${name} PREFIX "" IMPORT_PREFIX "unused-" LINK_DEPENDS ${def})
    # The .def file gives plain names; the fix-up pairs them with the decorated functions of the 32-bit objects.
    target_link_options(${name}_dll PRIVATE -s $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86>:-Wl,--enable-stdcall-fixup>)
endfunction()
