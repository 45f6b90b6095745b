function(vorn_program name folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/${folder}/*.rc")
    set(shell ${sources})
    list(FILTER shell EXCLUDE REGEX "/core/")
    if(NOT shell) # its portable part alone is no program yet
        return()
    endif()
    add_executable(${name} ${ARGN} ${sources})
    target_link_libraries(${name} PRIVATE vorn_flags VornCommon)
    set_property(GLOBAL APPEND PROPERTY VORN_PROGRAMS ${name})
endfunction()

vorn_program(vorntool apps/vorntool)
vorn_program(VornSample apps/sample WIN32)
