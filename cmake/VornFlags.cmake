# Flags of all code of our own. Third-party headers come in as system headers.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET default)

# Where headers are precompiled a compiler cache has little to give and costs more: it reads those headers, a hundred
# megabytes, for each source.
find_program(VORN_CCACHE ccache)
if(VORN_CCACHE AND NOT VORN_PRECOMPILE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # What the compiler says it read is enough to know it again; no source is preprocessed twice.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND};-E;env;CCACHE_DEPEND=1;${VORN_CCACHE}")
endif()

add_library(vorn_flags INTERFACE)
target_include_directories(vorn_flags INTERFACE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/framework/include" "${PROJECT_SOURCE_DIR}/include")
target_compile_options(vorn_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(WIN32)
    target_compile_definitions(vorn_flags INTERFACE
        WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0800 NOMINMAX STRICT __USE_MINGW_ANSI_STDIO=1)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
    set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
endif()
if(VORN_SANITIZE)
    target_compile_options(vorn_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(vorn_flags INTERFACE "$<$<BOOL:$<TARGET_PROPERTY:VORN_TESTS_OTHERS>>:-fno-sanitize=null,alignment,vptr>")
    target_compile_definitions(vorn_flags INTERFACE _GLIBCXX_DEBUG _GLIBCXX_DEBUG_PEDANTIC VORN_PLAIN_HEAP)
    target_link_options(vorn_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VORN_FUZZ)
    # As the fuzzer's authors advise: fast enough, and quick to build.
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1 -DNDEBUG")
    target_compile_options(vorn_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(vorn_flags INTERFACE VORN_PLAIN_HEAP)
    target_link_options(vorn_flags INTERFACE -fsanitize=address,undefined)
endif()
