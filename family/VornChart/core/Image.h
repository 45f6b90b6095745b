#pragma once

#include "family/VornChart/core/Export.h"

/// Base of the family's pictures.
class VORNCHART_API Image
{
public:
    Image() = default;
    Image(const Image&) = default;
    Image& operator=(const Image&) = default;
    virtual ~Image();

    /// A new picture of the same size that tells where this one has the colour, of 0 to 255 each; the caller deletes
    /// it. Null where a class has no masks, as here, and when it cannot be made.
    virtual Image* BuildMask(int red, int green, int blue);
};
