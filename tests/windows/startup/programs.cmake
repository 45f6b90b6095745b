# A program for the dialog to start: it writes where it was started, and goes.
add_executable(startup_updater windows/startup/program/Updater.cpp)
target_link_libraries(startup_updater PRIVATE vorn_flags)
target_link_options(startup_updater PRIVATE -static)
add_dependencies(windows_startup_tests startup_updater)
