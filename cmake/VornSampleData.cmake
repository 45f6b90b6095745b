# The sample's tables: CSV files become dBASE tables with memo files, through the library's own table class. The
# program that does it is for the machine that builds, so it is a project of its own, built beside this one with the
# native compiler.
include(ExternalProject)
set(maketables "${PROJECT_BINARY_DIR}/maketables/maketables${CMAKE_HOST_EXECUTABLE_SUFFIX}")
ExternalProject_Add(maketables
    SOURCE_DIR "${PROJECT_SOURCE_DIR}/apps/maketables"
    PREFIX "${PROJECT_BINARY_DIR}/maketables-project"
    BINARY_DIR "${PROJECT_BINARY_DIR}/maketables"
    CMAKE_ARGS -DCMAKE_BUILD_TYPE= # it runs for a moment, three times
    INSTALL_COMMAND ""
    BUILD_ALWAYS ON # it knows itself what is to be done
    BUILD_BYPRODUCTS "${maketables}")

set(sample_data "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/data")
set(sample_tables "")
foreach(table navaids runways shores)
    set(values "${PROJECT_SOURCE_DIR}/apps/sample/data/${table}.csv")
    set(products "${sample_data}/${table}.dbf" "${sample_data}/${table}.dbt")
    add_custom_command(OUTPUT ${products}
        COMMAND ${CMAKE_COMMAND} -E make_directory "${sample_data}"
        COMMAND "${maketables}" "${values}" "${sample_data}/${table}.dbf"
        DEPENDS maketables "${maketables}" "${values}"
        COMMENT "Making the sample's table ${table}.dbf" VERBATIM)
    list(APPEND sample_tables ${products})
endforeach()
add_custom_target(sample_tables ALL DEPENDS ${sample_tables})
add_dependencies(VornSample sample_tables)
install(FILES ${sample_tables} DESTINATION bin/data)
