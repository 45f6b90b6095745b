# The records under test stand in front of the system's import libraries, as they do in the library's DLLs.
target_link_libraries(windows_framework_late_tests PRIVATE vorn_late)
