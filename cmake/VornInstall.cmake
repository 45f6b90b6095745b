# What a host application needs: `cmake --install build/windows-x86 --prefix DIR` puts DLLs, programs
# and the compiler's runtime DLLs into bin, import libraries into lib, headers into include/vorn,
# and the CMake package into lib/cmake/VornCommon.
include(CMakePackageConfigHelpers)
get_property(libraries GLOBAL PROPERTY VORN_LIBRARIES)
get_property(programs GLOBAL PROPERTY VORN_PROGRAMS)
set(package_folder lib/cmake/VornCommon)

# A host sees the interface with the same system version and the same arithmetic as the library.
target_include_directories(HostFramework INTERFACE
    $<INSTALL_INTERFACE:include/vorn> $<INSTALL_INTERFACE:include/vorn/framework/include>)
target_compile_definitions(HostFramework INTERFACE
    $<INSTALL_INTERFACE:WINVER=0x0601> $<INSTALL_INTERFACE:_WIN32_WINNT=0x0601> $<INSTALL_INTERFACE:_WIN32_IE=0x0800>
    $<INSTALL_INTERFACE:NOMINMAX> $<INSTALL_INTERFACE:STRICT> $<INSTALL_INTERFACE:__USE_MINGW_ANSI_STDIO=1>)
target_compile_options(HostFramework INTERFACE
    "$<INSTALL_INTERFACE:$<$<COMPILE_LANGUAGE:C,CXX>:-msse2;-mfpmath=sse;-mstackrealign>>")
target_compile_features(HostFramework INTERFACE cxx_std_20)

install(TARGETS ${libraries} EXPORT VornCommonTargets
        RUNTIME DESTINATION bin LIBRARY DESTINATION bin ARCHIVE DESTINATION lib)
install(TARGETS ${programs} RUNTIME DESTINATION bin)
install(FILES ${VORN_RUNTIME_DLLS} DESTINATION bin)

# What there is to install, for who wants nothing else built.
add_custom_target(install_contents)
add_dependencies(install_contents ${libraries} ${programs} AzimuthalEquidistant)
if(TARGET sample_tables)
    add_dependencies(install_contents sample_tables)
endif()

foreach(area IN LISTS VORN_AREAS)
    if(NOT area STREQUAL apps AND IS_DIRECTORY "${PROJECT_SOURCE_DIR}/${area}")
        install(DIRECTORY "${PROJECT_SOURCE_DIR}/${area}" DESTINATION include/vorn FILES_MATCHING PATTERN "*.h")
    endif()
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/" DESTINATION include/vorn FILES_MATCHING PATTERN "*.h")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/VornCommonConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/package/VornCommonConfig.cmake" INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/VornCommonConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(EXPORT VornCommonTargets NAMESPACE Vorn:: DESTINATION ${package_folder})
install(FILES "${PROJECT_BINARY_DIR}/package/VornCommonConfig.cmake"
              "${PROJECT_BINARY_DIR}/package/VornCommonConfigVersion.cmake" DESTINATION ${package_folder})
