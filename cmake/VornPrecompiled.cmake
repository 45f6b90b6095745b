# Precompiled headers: two thirds of a compilation here are the same hundred headers read again.
# They change nothing that a source says: VORN_PRECOMPILE=OFF builds without them, and so do the
# fuzz targets, where a header that somebody forgot to include is found.
option(VORN_PRECOMPILE "Precompile the headers that most sources include" ON)
if(VORN_FUZZ)
    set(VORN_PRECOMPILE OFF)
endif()

set(VORN_STANDARD_HEADERS
    <algorithm> <array> <atomic> <charconv> <climits> <cmath> <cstddef> <cstdint> <cstdio> <cstdlib> <cstring> <functional>
    <limits> <map> <memory> <new> <optional> <set> <span> <stdexcept> <string> <string_view> <system_error> <tuple>
    <type_traits> <unordered_map> <utility> <variant> <vector>)

# GCC 12 sees overruns in its own std::string where there are none, and with precompiled headers no longer
# knows these headers for the system's, about which it keeps silent.
set(VORN_FALSE_ALARMS "$<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds;-Wno-restrict;-Wno-stringop-overflow>")

# vorn_precompile(TARGET header...): the standard headers and these; own headers in the form <area/Header.h>.
function(vorn_precompile target)
    if(VORN_PRECOMPILE)
        target_compile_options(${target} PRIVATE "${VORN_FALSE_ALARMS}")
        target_precompile_headers(${target} PRIVATE ${VORN_STANDARD_HEADERS} ${ARGN})
    endif()
endfunction()

# vorn_precompile_as(TARGET OTHER): what OTHER precompiles; both must be compiled alike.
function(vorn_precompile_as target other)
    if(VORN_PRECOMPILE)
        target_compile_options(${target} PRIVATE "${VORN_FALSE_ALARMS}")
        target_precompile_headers(${target} REUSE_FROM ${other})
    endif()
endfunction()

# vorn_precompile_host(TARGET): what the programs precompile, made once; for targets that link VornCommon.
function(vorn_precompile_host target)
    if(VORN_PRECOMPILE AND NOT TARGET vorn_host_headers)
        file(WRITE "${PROJECT_BINARY_DIR}/host_headers.cpp" "// Carries the precompiled headers.\n")
        add_library(vorn_host_headers OBJECT "${PROJECT_BINARY_DIR}/host_headers.cpp")
        target_link_libraries(vorn_host_headers PRIVATE vorn_flags VornCommon)
        vorn_precompile(vorn_host_headers <VornCommon.h>)
    endif()
    vorn_precompile_as(${target} vorn_host_headers)
endfunction()
