# The preferences are a library of the sample's own; the templates go with each program.
target_link_libraries(windows_preferences_tests PRIVATE vorn_preferences)
target_sources(windows_preferences_tests PRIVATE "${VORN_PREFERENCES_RESOURCES}")
