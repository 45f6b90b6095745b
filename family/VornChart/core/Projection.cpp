#include "family/VornChart/core/Projection.h"

#include "family/VornChart/core/EquidistantCylindrical.h"
#include "family/VornChart/core/LambertConformal.h"
#include "family/VornChart/core/Mercator.h"
#include "family/VornChart/core/Orthographic.h"
#include "family/VornChart/core/PolarStereographic.h"
#include "family/VornChart/core/TransverseMercator.h"

#include <memory>

using namespace vorn::projections;

namespace
{
std::unique_ptr<Projection> BuiltIn(int index)
{
    switch (index)
    {
    case PROJECTION_EQUIDISTANT_CYLINDRICAL:
        return std::make_unique<EquidistantCylindrical>();
    case PROJECTION_MERCATOR:
        return std::make_unique<Mercator>();
    case PROJECTION_LAMBERT_CONFORMAL:
        return std::make_unique<LambertConformal>();
    case PROJECTION_POLAR_STEREOGRAPHIC:
        return std::make_unique<PolarStereographic>();
    case PROJECTION_TRANSVERSE_MERCATOR:
        return std::make_unique<TransverseMercator>();
    case PROJECTION_ORTHOGRAPHIC:
        return std::make_unique<Orthographic>();
    default:
        return nullptr;
    }
}
} // namespace

Projection* Projection::CreateProjection(int index)
{
    return BuiltIn(index).release();
}

Projection::~Projection() = default;

bool Projection::Init()
{
    return true;
}
