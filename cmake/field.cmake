# libztfield: fields without a window, over the engine built for whole code points. A shared and a static library; what the interface does
# not declare is hidden in both. And what cmake --install lays down of them, component "ztfield".
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
    VISIBILITY_INLINES_HIDDEN ON UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
# Once is enough: what 32 bits do otherwise shows in the engine, which is watched there as well.
set(zt_field_is_watched OFF)
if(ZT_SANITIZE AND CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(zt_field_is_watched ON)
    target_compile_options(zt_field_objects PRIVATE -O0 -g1 -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
endif()

# A program in C finds all that it needs in the shared library; what the compiler's own libraries declare stays inside as well.
add_library(ztfield SHARED $<TARGET_OBJECTS:zt_field_objects>)
set_target_properties(ztfield PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
    LINKER_LANGUAGE CXX LINK_DEPENDS ${CMAKE_SOURCE_DIR}/ztfield/ztfield.map)
target_link_options(ztfield PRIVATE -Wl,--version-script=${CMAKE_SOURCE_DIR}/ztfield/ztfield.map)
if(NOT zt_field_is_watched)  # what watches a library is the program's, with one of the compilers
    target_link_options(ztfield PRIVATE -Wl,--no-undefined -static-libstdc++ -static-libgcc -Wl,--gc-sections)
endif()

# One object in which all names but those of the interface are local: a program may have an engine of its own, or other names like ours.
# Its groups are taken apart, because the linker would keep one of two groups of a name, whose symbols are then none of ours.
set(zt_field_object ${CMAKE_BINARY_DIR}/ztfield_static.o)
separate_arguments(zt_field_flags UNIX_COMMAND "${CMAKE_CXX_FLAGS}")
add_custom_command(OUTPUT ${zt_field_object}
    COMMAND ${CMAKE_CXX_COMPILER} ${zt_field_flags} -r -nostdlib -Wl,--force-group-allocation $<TARGET_OBJECTS:zt_field_objects>
        -o ${zt_field_object}
    COMMAND ${CMAKE_OBJCOPY} --wildcard "--keep-global-symbol=ZTF_*" $<$<CONFIG:Release>:--strip-unneeded> ${zt_field_object}
    DEPENDS zt_field_objects $<TARGET_OBJECTS:zt_field_objects> COMMAND_EXPAND_LISTS VERBATIM)
add_library(ztfield_static STATIC ${zt_field_object})
set_target_properties(ztfield_static PROPERTIES OUTPUT_NAME ztfield LINKER_LANGUAGE C)
target_link_libraries(ztfield_static INTERFACE stdc++ m)

foreach(library ztfield ztfield_static)
    target_include_directories(${library} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
    if(zt_field_is_watched)
        target_link_options(${library} PUBLIC -fsanitize=address,undefined)
    endif()
endforeach()

# ---- what a program's maker gets

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(zt_field_package ${CMAKE_INSTALL_LIBDIR}/cmake/ztfield)
configure_package_config_file(${CMAKE_SOURCE_DIR}/cmake/ztfield-config.cmake.in ${CMAKE_BINARY_DIR}/package/ztfield-config.cmake
    INSTALL_DESTINATION ${zt_field_package})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/package/ztfield-config-version.cmake COMPATIBILITY SameMinorVersion)
file(RELATIVE_PATH zt_field_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${CMAKE_SOURCE_DIR}/cmake/ztfield.pc.in ${CMAKE_BINARY_DIR}/package/ztfield.pc @ONLY)

install(TARGETS ztfield ztfield_static EXPORT ztfield COMPONENT ztfield LIBRARY NAMELINK_COMPONENT ztfield)
install(EXPORT ztfield NAMESPACE ztfield:: FILE ztfield-targets.cmake DESTINATION ${zt_field_package} COMPONENT ztfield)
install(FILES ${CMAKE_BINARY_DIR}/package/ztfield-config.cmake ${CMAKE_BINARY_DIR}/package/ztfield-config-version.cmake
    DESTINATION ${zt_field_package} COMPONENT ztfield)
install(FILES ${CMAKE_BINARY_DIR}/package/ztfield.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ztfield)
install(FILES include/ztfield.h include/ztvalues.h DESTINATION include COMPONENT ztfield)
install(FILES ztfield/ztfield.3 DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 COMPONENT ztfield)
install(FILES bindings/python/ztfield.py bindings/python/field_sample.py DESTINATION ${CMAKE_INSTALL_DATADIR}/ztfield/python
    COMPONENT ztfield)
install(FILES samples/terminal_field.c DESTINATION ${CMAKE_INSTALL_DATADIR}/ztfield/samples COMPONENT ztfield)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ztfield COMPONENT ztfield)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ztfield COMPONENT ztfield)
