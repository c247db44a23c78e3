# libztfield: fields without a window, over the engine built for whole code points. A shared and a static library; what the interface does
# not declare is hidden in both.
#
#   zt_field_objects   the engine's and the interface's objects
#   ztfield, ztfield_static

file(GLOB zt_field_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/ztfield/*.cpp)
get_target_property(zt_engine_files zt_engine SOURCES)
add_library(zt_field_objects OBJECT ${zt_engine_files} ${zt_field_files})
target_link_libraries(zt_field_objects PRIVATE zt_build_flags)
target_compile_definitions(zt_field_objects PRIVATE ZT_WIDE_CHARACTERS)
target_compile_options(zt_field_objects PRIVATE -fno-exceptions -fno-rtti)
set_target_properties(zt_field_objects PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
if(ZT_SANITIZE)
    target_compile_options(zt_field_objects PRIVATE -O1 -g1 -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
endif()

add_library(ztfield SHARED $<TARGET_OBJECTS:zt_field_objects>)
add_library(ztfield_static STATIC $<TARGET_OBJECTS:zt_field_objects>)
set_target_properties(ztfield PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
    LINKER_LANGUAGE CXX)
set_target_properties(ztfield_static PROPERTIES OUTPUT_NAME ztfield LINKER_LANGUAGE CXX)
foreach(library ztfield ztfield_static)
    target_include_directories(${library} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
    if(ZT_SANITIZE)
        target_link_options(${library} PUBLIC -fsanitize=address,undefined)
    endif()
endforeach()
target_link_options(ztfield PRIVATE -Wl,--no-undefined -Wl,--version-script=${CMAKE_SOURCE_DIR}/ztfield/ztfield.map)
