#pragma once

#include <VornCommon.h>

#include <string>

/// Writes a picture as PNG, JPEG or BMP file, by the ending of its name. What is wrong; empty when nothing is.
std::string SavePicture(const DIB& picture, const std::string& path);
