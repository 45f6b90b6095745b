# Projection plug-ins for the tool to load.
add_dependencies(windows_vorntool_tests AzimuthalEquidistant projection_bare projection_first projection_no_create)
# Long: begun with.
set_tests_properties(${preset}.vorntool PROPERTIES COST 40)
