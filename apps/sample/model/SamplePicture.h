#pragma once

#include <VornCommon.h>

/// A picture of 32 bits to begin with: hills in the colours of terrain bands, lit from the north-west, with contour
/// lines, behind a soft round edge.
DIB SamplePicture();
