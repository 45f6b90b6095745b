# An extension library of the framework, and hosts that have no main function of their own.
set(here "${CMAKE_CURRENT_SOURCE_DIR}/windows/framework_app")

add_library(framework_app_extension SHARED "${here}/extension/Extension.cpp" "${here}/extension/Extension.rc")
target_compile_definitions(framework_app_extension PRIVATE EXTENSION_BUILD)
target_link_libraries(framework_app_extension PRIVATE vorn_flags HostFramework)
target_link_libraries(windows_framework_app_tests PRIVATE framework_app_extension)

add_executable(framework_app_host WIN32 "${here}/host/Host.cpp" "${here}/host/Host.rc")
add_executable(framework_app_console_host "${here}/host/Host.cpp" "${here}/host/Host.rc")
foreach(host framework_app_host framework_app_console_host)
    target_link_libraries(${host} PRIVATE vorn_flags HostFramework)
    add_dependencies(windows_framework_app_tests ${host})
endforeach()
