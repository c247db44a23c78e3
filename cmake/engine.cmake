# The engine as static libraries, of which a program takes what it needs.
#
# On Windows:
#   zt_values    engine/text and engine/values: what the companion libraries are made of, too
#   zt_editing   the floors above them; the program that links it provides the services
#   zt_memory    the field in memory, which the tests hold to the system's own
# Elsewhere:
#   zt_engine    all of it, with its own services; over whole code points it is part of libztfield (cmake/field.cmake)

function(zt_add_floor name)
    set(sources)
    foreach(folder IN LISTS ARGN)
        file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
        list(APPEND sources ${found})
    endforeach()
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC zt_build_flags)
endfunction()

set(zt_value_folders engine/text engine/values)
set(zt_editing_folders engine/mask engine/format engine/spin engine/edit engine/modern)
if(WIN32)
    zt_add_floor(zt_values ${zt_value_folders})
    zt_add_floor(zt_editing ${zt_editing_folders})
    target_sources(zt_editing PRIVATE ${CMAKE_SOURCE_DIR}/engine/editing.cpp)
    target_link_libraries(zt_editing PUBLIC zt_values)
    add_library(zt_memory STATIC ${CMAKE_SOURCE_DIR}/engine/memory_field.cpp)
    target_link_libraries(zt_memory PUBLIC zt_values)
else()
    # Read once where only tests are built; the libraries are built without, so that each file names what it needs.
    set(zt_engine_headers <algorithm> <cstdint> <optional> <string> <utility> <vector>)
    zt_add_floor(zt_engine ${zt_value_folders} ${zt_editing_folders} engine)
    get_target_property(zt_engine_sources zt_engine SOURCES)
    # The engine throws nothing and asks no object for its type; a build without either says so. (In the library a field may
    # unwind through it.)
    target_compile_options(zt_engine PRIVATE -fno-exceptions -fno-rtti)
    # On 64 bits each file is compiled by itself, so that it names what it needs; on 32 some at a time, which takes half as long.
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        set_target_properties(zt_engine PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    endif()
    # Only the engine is watched; the tests around it build in half the time without.
    if(ZT_SANITIZE)
        target_precompile_headers(zt_engine PRIVATE ${zt_engine_headers})
        target_compile_options(zt_engine PRIVATE -O1 -g1 -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(zt_engine PUBLIC -fsanitize=address,undefined)
    endif()
    if(ZT_COVERAGE)
        target_compile_options(zt_engine PRIVATE --coverage)
        target_link_options(zt_engine PUBLIC --coverage)
    endif()
endif()
