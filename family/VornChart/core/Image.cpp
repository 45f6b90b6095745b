#include "family/VornChart/core/Image.h"

Image::~Image() = default;

Image* Image::BuildMask(int /*red*/, int /*green*/, int /*blue*/)
{
    return nullptr;
}
