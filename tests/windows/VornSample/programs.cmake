# What the sample starts, and the application beside it.
add_dependencies(windows_VornSample_tests VornUpdate VornBriefing)
# Long: begun with.
set_tests_properties(${preset}.VornSample PROPERTIES COST 50)
