# The fuzzers: bin/fuzz_<target> for every door of the engine, each driven by libFuzzer under address and undefined-behaviour sanitizers.

set(zt_fuzz_doors
    masks PlayMasks
    number_formats PlayNumberFormats
    canonical PlayCanonical
    displays PlayDisplays
    tables PlayTables
    pictures PlayPictures
    control PlayControl
    modern PlayModern)

file(GLOB zt_fuzz_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/fuzz/*.cpp)
list(FILTER zt_fuzz_sources EXCLUDE REGEX "/(fuzzer|replay)\\.cpp$")
add_library(zt_fuzz_targets STATIC ${zt_fuzz_sources} ${CMAKE_SOURCE_DIR}/tests/support/currencies.cpp)
target_link_libraries(zt_fuzz_targets PUBLIC zt_engine)

# Coverage is counted in the engine alone: inputs are kept for what they reach there, not for what the laws look at.
# Comparisons are not traced: a script's steps are many and cheap, and tracing took nine tenths of the time.
target_compile_options(zt_engine PRIVATE -O2 -fsanitize-coverage=inline-8bit-counters,pc-table)

while(zt_fuzz_doors)
    list(POP_FRONT zt_fuzz_doors door play)
    add_executable(fuzz_${door} ${CMAKE_SOURCE_DIR}/tests/fuzz/fuzzer.cpp)
    target_compile_definitions(fuzz_${door} PRIVATE ZT_FUZZ_PLAY=${play})
    target_link_libraries(fuzz_${door} PRIVATE zt_fuzz_targets)
    target_link_options(fuzz_${door} PRIVATE -fsanitize=fuzzer)
endwhile()
