set_source_files_properties(windows/helptexts/HelpTextTests.cpp PROPERTIES COMPILE_DEFINITIONS
    VORN_HELP_TABLE="${PROJECT_SOURCE_DIR}/resources/help/help_strings.txt")
