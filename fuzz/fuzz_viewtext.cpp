#include "family/VornChart/core/Projection.h"
#include "family/VornChart/core/ViewDefinition.h"

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>

namespace
{
void Demand(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

/// Whatever a view says, the projection that it sets up answers in numbers.
void Project(const ViewDefinition& view)
{
    const std::unique_ptr<Projection> projection(Projection::CreateProjection(view.mProjection % 8));
    if (!projection)
    {
        return;
    }
    view.ApplyTo(*projection);
    double x = 0;
    double y = 0;
    double lat = 0;
    double lon = 0;
    projection->XYtoLL(view.mMapX, view.mMapY, lat, lon);
    projection->LLtoXY(view.mCenterLat, view.mCenterLon, x, y);
    Demand(std::isfinite(x) && std::isfinite(y) && lat >= -90 && lat <= 90 && lon >= -180 && lon <= 180);
    projection->MinMaxMapXY(x, y, lat, lon);
    Demand(x <= lat && y <= lon);
}
} // namespace

/// Any text as a view; and any bytes as a projection's state.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    ViewDefinition view;
    const CString before = view.Format();
    if (view.Parse(text.c_str()))
    {
        ViewDefinition again;
        Demand(again.Parse(view.Format()) && again.Format() == view.Format());
        Project(view);
    }
    else
    {
        Demand(view.Format() == before);
    }

    const std::unique_ptr<Projection> projection(Projection::CreateProjection(size == 0 ? 0 : data[0] % 6));
    char* cursor = text.data();
    auto remaining = static_cast<unsigned long>(size);
    projection->ReadWrite(cursor, remaining, true);
    Demand(cursor + remaining == text.data() + size);
    double x = 0;
    double y = 0;
    Demand(!projection->LLtoXY(10, 20, x, y) || (std::isfinite(x) && std::isfinite(y)));
    return 0;
}
