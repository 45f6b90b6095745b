# libpng, libjpeg-turbo, libdeflate and zlib: the static libraries of our own build for Windows, Debian's packages
# natively. For Windows nowhere else is looked: a copy beside the compiler may be another version, or bring a DLL with it.
set(picture_places "")
if(WIN32)
    set(picture_places PATHS "${VORN_DEPS}/include" "${VORN_DEPS}/lib" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
endif()

add_library(vorn_images INTERFACE)
function(vorn_image_library name header) # library-names...
    find_path(VORN_${name}_INCLUDE ${header} ${picture_places} REQUIRED)
    find_library(VORN_${name}_LIBRARY NAMES ${ARGN} ${picture_places} REQUIRED)
    mark_as_advanced(VORN_${name}_INCLUDE VORN_${name}_LIBRARY)
    target_include_directories(vorn_images SYSTEM INTERFACE "${VORN_${name}_INCLUDE}")
    target_link_libraries(vorn_images INTERFACE "${VORN_${name}_LIBRARY}")
endfunction()

# In the order in which they need each other.
vorn_image_library(PNG png.h libpng16.a png16 png)
vorn_image_library(JPEG jpeglib.h libjpeg.a jpeg)
vorn_image_library(DEFLATE libdeflate.h libdeflate.a deflate)
vorn_image_library(ZLIB zlib.h libz.a z)
if(NOT WIN32)
    target_link_libraries(vorn_images INTERFACE m)
endif()
