# The portable core: every core/ folder of every area in one static library, without
# Windows headers. Tests, benchmarks and fuzz targets link it; the DLLs compile the same
# files into themselves with their export marks.
set(core_globs "")
foreach(area IN LISTS VORN_AREAS)
    list(APPEND core_globs "${PROJECT_SOURCE_DIR}/${area}/*.cpp")
endforeach()
file(GLOB_RECURSE core_sources CONFIGURE_DEPENDS ${core_globs})
list(FILTER core_sources INCLUDE REGEX "/core/[^/]+\\.cpp$")

add_library(vorn_core STATIC ${core_sources})
target_compile_definitions(vorn_core PUBLIC VORN_CORE_STATIC)
target_link_libraries(vorn_core PUBLIC vorn_flags PRIVATE vorn_geodesics vorn_images)
vorn_precompile(vorn_core <framework/core/BaseTypes.h>)
# Sanitizers and fuzzers look at what runs: that each source stands by itself, the other builds show.
if(VORN_SANITIZE OR VORN_FUZZ)
    vorn_compile_together(vorn_core)
endif()
