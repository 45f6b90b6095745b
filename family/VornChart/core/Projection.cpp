#include "family/VornChart/core/Projection.h"

#include "family/VornChart/core/EquidistantCylindrical.h"
#include "family/VornChart/core/LambertConformal.h"
#include "family/VornChart/core/Mercator.h"
#include "family/VornChart/core/Orthographic.h"
#include "family/VornChart/core/PolarStereographic.h"
#include "family/VornChart/core/TransverseMercator.h"

#include <new>

using namespace vorn::projections;

namespace
{
template <class Kind>
Projection* New()
{
    return new (std::nothrow) Kind; // the interface hands it to its caller
}
} // namespace

Projection* Projection::CreateProjection(int index)
{
    switch (index)
    {
    case PROJECTION_EQUIDISTANT_CYLINDRICAL:
        return New<EquidistantCylindrical>();
    case PROJECTION_MERCATOR:
        return New<Mercator>();
    case PROJECTION_LAMBERT_CONFORMAL:
        return New<LambertConformal>();
    case PROJECTION_POLAR_STEREOGRAPHIC:
        return New<PolarStereographic>();
    case PROJECTION_TRANSVERSE_MERCATOR:
        return New<TransverseMercator>();
    case PROJECTION_ORTHOGRAPHIC:
        return New<Orthographic>();
    default:
        return nullptr;
    }
}

Projection::~Projection() = default;

bool Projection::Init()
{
    return true;
}
