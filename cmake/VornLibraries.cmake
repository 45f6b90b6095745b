enable_language(RC)

# System functions whose DLLs are loaded with their first call; goes before the plain import libraries.
add_library(vorn_late STATIC framework/late/BindLateFunction.cpp framework/late/LateFunctions.cpp)
target_link_libraries(vorn_late PRIVATE vorn_flags)

# vorn_library(NAME EXPORT_MACRO folder...): one DLL from every source below the folders.
function(vorn_library name macro)
    set(globs "")
    foreach(folder IN LISTS ARGN)
        list(APPEND globs "${PROJECT_SOURCE_DIR}/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/${folder}/*.rc")
    endforeach()
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${globs})
    list(FILTER sources EXCLUDE REGEX "/framework/(late|start)/")
    add_library(${name} SHARED ${sources})
    target_compile_definitions(${name} PRIVATE ${macro})
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:vorn_flags> $<BUILD_INTERFACE:vorn_late>)
    add_library(Vorn::${name} ALIAS ${name})
    set_property(GLOBAL APPEND PROPERTY VORN_LIBRARIES ${name})
endfunction()

vorn_library(HostFramework HOSTFRAMEWORK_BUILD framework)
vorn_precompile(HostFramework <framework/core/BaseTypes.h> <framework/include/afxwin.h>)
target_link_libraries(HostFramework PUBLIC uuid version gdi32
                      INTERFACE comctl32 comdlg32 winspool shell32 ole32 oleaut32)

# The entry of hosts that have an application object and no main function of their own. Every
# program that links the framework may take it; its own main or WinMain goes before.
add_library(HostFrameworkMain STATIC framework/start/WinMain.cpp)
target_link_libraries(HostFrameworkMain PRIVATE $<BUILD_INTERFACE:vorn_flags> PUBLIC HostFramework)
add_library(Vorn::HostFrameworkMain ALIAS HostFrameworkMain)
set_property(GLOBAL APPEND PROPERTY VORN_LIBRARIES HostFrameworkMain)
target_link_libraries(HostFramework INTERFACE HostFrameworkMain)
target_link_options(HostFramework INTERFACE
    "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:LINKER:-u,_WinMain@16>")

vorn_library(TarnUtil TARNUTIL_BUILD family/TarnUtil)
target_link_libraries(TarnUtil PUBLIC HostFramework PRIVATE $<BUILD_INTERFACE:vorn_geodesics>)

vorn_library(TarnComm TARNCOMM_BUILD family/TarnComm)
target_link_libraries(TarnComm PUBLIC TarnUtil)

vorn_library(VornChart VORNCHART_BUILD family/VornChart)
target_link_libraries(VornChart PUBLIC TarnUtil)

vorn_library(VornCommon VORNCOMMON_BUILD frame config aviation files toolkit resources)
target_link_libraries(VornCommon PUBLIC HostFramework TarnUtil TarnComm VornChart PRIVATE $<BUILD_INTERFACE:vorn_images>)
vorn_precompile(VornCommon <framework/include/afxwin.h>)

# The compiler's runtime DLLs stand beside the programs: exceptions and RTTI cross modules
# only when every module shares them. They come without their debug information, which is ten times
# as large as they are and makes them slow to load.
set(VORN_RUNTIME_DLLS "")
file(MAKE_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
foreach(dll libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
        set(path "/usr/i686-w64-mingw32/lib/${dll}")
    endif()
    set(copy "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll}")
    if(NOT EXISTS "${copy}" OR "${path}" IS_NEWER_THAN "${copy}")
        execute_process(COMMAND ${CMAKE_STRIP} -o "${copy}" "${path}" COMMAND_ERROR_IS_FATAL ANY)
    endif()
    list(APPEND VORN_RUNTIME_DLLS "${copy}")
endforeach()
