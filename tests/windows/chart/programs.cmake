# Charts are drawn by a library of the programs' own.
target_link_libraries(windows_chart_tests PRIVATE vorn_chart)
if(TARGET sample_tables)
    add_dependencies(windows_chart_tests sample_tables)
endif()
