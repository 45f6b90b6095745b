# The control help texts: one table of lines, from which the string table is made for VornCommon.dll. Needs no more
# than the awk that every Debian has.
set(help_table "${PROJECT_SOURCE_DIR}/resources/help/help_strings.txt")
set(help_maker "${PROJECT_SOURCE_DIR}/resources/help/string_table.awk")
set(help_script "${PROJECT_BINARY_DIR}/generated/HelpStrings.rc")

find_program(VORN_AWK NAMES awk mawk gawk REQUIRED)
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/generated")
add_custom_command(OUTPUT "${help_script}"
    COMMAND "${VORN_AWK}" -f "${help_maker}" "${help_table}" > "${help_script}.new"
    COMMAND ${CMAKE_COMMAND} -E rename "${help_script}.new" "${help_script}"
    DEPENDS "${help_table}" "${help_maker}"
    COMMENT "Making the string table of the help texts" VERBATIM)
target_sources(VornCommon PRIVATE "${help_script}")
