# The engine, as static libraries, of which a program takes what it needs:
#   zt_values    engine/text and engine/values: what the companion libraries are made of, too
#   zt_editing   the floors above them
#   zt_memory    the field in memory and the engine's own services, for programs without the library's DLLs
# and zt_engine: all of them.

function(zt_add_floor name)
    set(sources)
    foreach(folder IN LISTS ARGN)
        file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
        list(APPEND sources ${found})
    endforeach()
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC zt_build_flags)
endfunction()

zt_add_floor(zt_values engine/text engine/values)
zt_add_floor(zt_editing engine/mask engine/format engine/spin engine/edit)
zt_add_floor(zt_memory engine)

target_link_libraries(zt_editing PUBLIC zt_values)
target_link_libraries(zt_memory PUBLIC zt_values)
add_library(zt_engine INTERFACE)
target_link_libraries(zt_engine INTERFACE zt_editing zt_memory zt_values)

# The engine throws nothing and asks no object for its type; a build without either says so. (In the library a field may unwind
# through it.)
if(NOT WIN32)
    foreach(floor zt_values zt_editing zt_memory)
        target_compile_options(${floor} PRIVATE -fno-exceptions -fno-rtti)
    endforeach()
endif()
