# GeographicLib's geodesics: the static library of our own build for Windows, Debian's package natively.
find_path(VORN_GEODESICS_INCLUDE GeographicLib/Geodesic.hpp REQUIRED)
find_library(VORN_GEODESICS_LIBRARY NAMES libGeographicLib.a GeographicLib REQUIRED)
mark_as_advanced(VORN_GEODESICS_INCLUDE VORN_GEODESICS_LIBRARY)

add_library(vorn_geodesics INTERFACE)
target_include_directories(vorn_geodesics SYSTEM INTERFACE "${VORN_GEODESICS_INCLUDE}")
target_link_libraries(vorn_geodesics INTERFACE "${VORN_GEODESICS_LIBRARY}")
