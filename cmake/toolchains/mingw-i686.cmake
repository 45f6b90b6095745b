# 32-bit Windows with the posix-thread flavour of MinGW-w64, as Debian packages it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)

# SSE arithmetic keeps every digit equal to the native build; callbacks from the
# system arrive on stacks aligned to 4 bytes only, hence the realignment.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")

get_filename_component(VORN_ROOT "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
set(VORN_DEPS "${VORN_ROOT}/build/deps/windows-x86" CACHE PATH "Prefix of the cross-built third-party libraries")
# Our own static builds come before whatever the machine has installed for this target.
set(CMAKE_FIND_ROOT_PATH "${VORN_DEPS}" /usr/i686-w64-mingw32 "${CMAKE_PREFIX_PATH}" "${CMAKE_INSTALL_PREFIX}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(CMAKE_CROSSCOMPILING_EMULATOR "${VORN_ROOT}/tools/with-wine")
