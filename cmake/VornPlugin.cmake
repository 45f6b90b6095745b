# The sample projection plug-in. It needs nothing beside itself, as plug-ins of others do.
add_library(AzimuthalEquidistant MODULE "${PROJECT_SOURCE_DIR}/apps/plugin/AzimuthalEquidistant.cpp")
target_compile_definitions(AzimuthalEquidistant PRIVATE VORNPLUGIN_BUILD)
target_link_libraries(AzimuthalEquidistant PRIVATE vorn_flags)
target_link_options(AzimuthalEquidistant PRIVATE -static)
set_target_properties(AzimuthalEquidistant PROPERTIES PREFIX ""
                      LIBRARY_OUTPUT_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/plugins")
install(TARGETS AzimuthalEquidistant LIBRARY DESTINATION bin/plugins)
install(FILES "${PROJECT_SOURCE_DIR}/apps/plugin/AzimuthalEquidistant.cpp" DESTINATION share/vorn/examples)
