# Precompiled headers: two thirds of a compilation here are the same hundred headers read again.
# They change nothing that a source says: VORN_PRECOMPILE=OFF builds without them, and the fuzz targets
# precompile the C++ library's alone, where a header of ours that somebody forgot to include is found.
option(VORN_PRECOMPILE "Precompile the headers that most sources include" ON)

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
        set(own_headers ${ARGN})
        if(VORN_FUZZ)
            set(own_headers "")
        endif()
        target_precompile_headers(${target} PRIVATE ${VORN_STANDARD_HEADERS} ${own_headers})
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

# Sources of one target compiled some at a time: what each would do anew, the templates of the test library and of the
# headers, is done once for all of them. Their unnamed namespaces become one: what two of them define alike gets names
# that differ or goes into a header.
option(VORN_UNITY "Compile sources of tests together" ON)

# vorn_compile_together(TARGET): about five at a time. Which ones is said by their names, so that a new one moves no other.
function(vorn_compile_together target)
    if(NOT VORN_UNITY)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(LENGTH sources count)
    set(groups 1)
    while(count GREATER 5)
        math(EXPR groups "${groups} * 2")
        math(EXPR count "${count} / 2")
    endwhile()
    foreach(source IN LISTS sources)
        get_filename_component(name "${source}" NAME)
        string(MD5 hash "${name}")
        string(SUBSTRING "${hash}" 0 4 hash)
        math(EXPR group "0x${hash} % ${groups}")
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${target}_${group}")
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    # A class on a base in an unnamed namespace is suspicious in a header, and only there.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()
