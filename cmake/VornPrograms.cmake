# The chart, which several programs draw: a library of theirs, no product.
file(GLOB_RECURSE chart_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/apps/chart/*.cpp")
add_library(vorn_chart STATIC ${chart_sources})
target_link_libraries(vorn_chart PRIVATE vorn_flags PUBLIC VornCommon)
vorn_precompile_host(vorn_chart)

# What the sample applications tell of their data.
add_library(vorn_datasets STATIC "${PROJECT_SOURCE_DIR}/apps/datasets/DataSets.cpp")
target_link_libraries(vorn_datasets PRIVATE vorn_flags PUBLIC VornCommon)
vorn_precompile_host(vorn_datasets)

# The planner's dialogs, which the sample and their tests open; the resources go with the program.
file(GLOB_RECURSE planner_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/apps/planner/*.cpp")
add_library(vorn_planner STATIC ${planner_sources})
target_link_libraries(vorn_planner PRIVATE vorn_flags PUBLIC VornCommon)
target_compile_options(vorn_planner PRIVATE -O1)
vorn_precompile_host(vorn_planner)
set(VORN_PLANNER_RESOURCES "${PROJECT_SOURCE_DIR}/apps/planner/planner.rc")

# The sample's preferences, for their tests as well; the resources go with the program.
file(GLOB preferences_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/apps/sample/preferences/*.cpp"
     "${PROJECT_SOURCE_DIR}/apps/sample/preferences/core/*.cpp")
add_library(vorn_preferences STATIC ${preferences_sources})
target_link_libraries(vorn_preferences PRIVATE vorn_flags PUBLIC vorn_planner)
target_compile_options(vorn_preferences PRIVATE -O1)
vorn_precompile_host(vorn_preferences)
set(VORN_PREFERENCES_RESOURCES "${PROJECT_SOURCE_DIR}/apps/sample/preferences/preferences.rc")

# The work is done in the libraries; what is left of a program needs little optimisation and is compiled often.
function(vorn_program name folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/${folder}/*.rc")
    list(FILTER sources EXCLUDE REGEX "/apps/sample/preferences/.*\\.cpp$") # a library
    set(shell ${sources})
    list(FILTER shell EXCLUDE REGEX "/core/")
    if(NOT shell) # its portable part alone is no program yet
        return()
    endif()
    add_executable(${name} ${ARGN} ${sources})
    target_link_libraries(${name} PRIVATE vorn_flags vorn_chart VornCommon)
    target_compile_definitions(${name} PRIVATE VORN_VERSION="${PROJECT_VERSION}")
    target_compile_options(${name} PRIVATE -O1)
    vorn_precompile_host(${name})
    set_property(GLOBAL APPEND PROPERTY VORN_PROGRAMS ${name})
endfunction()

vorn_program(vorntool apps/vorntool)
vorn_program(VornSample apps/sample WIN32)
vorn_program(VornUpdate apps/update WIN32)
vorn_program(VornBriefing apps/briefing WIN32)
foreach(program VornSample VornUpdate VornBriefing)
    target_link_libraries(${program} PRIVATE vorn_datasets)
endforeach()

if(TARGET VornSample)
    add_dependencies(VornSample VornUpdate) # starts it
    find_package(PNG REQUIRED)
    target_include_directories(VornSample PRIVATE "${PROJECT_SOURCE_DIR}/apps/sample")
    target_link_libraries(VornSample PRIVATE PNG::PNG vorn_preferences vorn_planner)
    target_sources(VornSample PRIVATE "${VORN_PLANNER_RESOURCES}")
endif()
