# Script: makes an import library from a .def file of plain names. In 32-bit code the callers' symbols carry the size of their
# arguments (_ZTE_Init@8), so there the sizes are looked up in the DLL's object files; the DLL's own names stay plain.
#
# DEF, OUTPUT   the files read and written            OBJECTS     object files of the DLL
# DLLTOOL, NM   the tools of the target               PROCESSOR   x86 or another

list(FILTER OBJECTS EXCLUDE REGEX "\\.gch$")  # headers compiled beforehand
set(tool_def ${DEF})
if(PROCESSOR STREQUAL "x86")
    execute_process(COMMAND ${NM} --defined-only --extern-only ${OBJECTS} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    file(STRINGS ${DEF} lines)
    set(decorated "")
    set(in_exports FALSE)
    foreach(line IN LISTS lines)
        if(line MATCHES "^EXPORTS")
            set(in_exports TRUE)
        elseif(in_exports AND line MATCHES "^[ \t]+([A-Za-z_0-9]+)(.*)$")
            set(name ${CMAKE_MATCH_1})
            set(rest "${CMAKE_MATCH_2}")
            if(NOT symbols MATCHES " T _${name}(@[0-9]+)")
                message(FATAL_ERROR "${DEF}: ${name} is not defined as a stdcall function by the sources")
            endif()
            set(line "    ${name}${CMAKE_MATCH_1}${rest}")
        endif()
        string(APPEND decorated "${line}\n")
    endforeach()
    set(tool_def ${OUTPUT}.def)
    file(WRITE ${tool_def} "${decorated}")
endif()

file(REMOVE ${OUTPUT})
execute_process(COMMAND ${DLLTOOL} --kill-at --input-def ${tool_def} --output-lib ${OUTPUT} COMMAND_ERROR_IS_FATAL ANY)
