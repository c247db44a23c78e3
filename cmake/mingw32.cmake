# Cross-compiling for 32-bit Windows with mingw-w64 (posix threads).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(ZT_TOOL_PREFIX i686-w64-mingw32)

set(CMAKE_C_COMPILER ${ZT_TOOL_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZT_TOOL_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${ZT_TOOL_PREFIX}-windres)
set(CMAKE_DLLTOOL ${ZT_TOOL_PREFIX}-dlltool)
include(${CMAKE_CURRENT_LIST_DIR}/search_paths.cmake)
