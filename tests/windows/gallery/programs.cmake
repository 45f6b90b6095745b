# The planner's dialogs are a library of the programs' own; the templates go with each program.
target_link_libraries(windows_gallery_tests PRIVATE vorn_planner)
target_sources(windows_gallery_tests PRIVATE "${VORN_PLANNER_RESOURCES}")
# Long: begun with.
set_tests_properties(${preset}.gallery PROPERTIES COST 40)
