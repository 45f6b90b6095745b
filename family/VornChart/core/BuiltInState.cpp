#include "family/TarnUtil/core/TarnObject.h"
#include "family/VornChart/core/BuiltInProjection.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

// Parameters, skew, outline and the serialised form of built-in projections.
namespace vorn::projections
{
namespace
{
template <typename Field>
bool Transfer(Field& field, char*& cursor, unsigned long& remaining, bool read)
{
    return TarnObject::ReadWriteSimpleValue(cursor, remaining, &field, sizeof field, read) != 0;
}

bool IsWithin(double value, double least, double most)
{
    return value >= least && value <= most; // NaN is not
}
} // namespace

bool BuiltInProjection::HasParameter(int index) const
{
    return index >= 0 && index < NumParams();
}

int BuiltInProjection::NumParams() const
{
    return static_cast<int>(m_facts->parameters.size());
}

const char* BuiltInProjection::ParamName(int index) const
{
    return HasParameter(index) ? m_facts->parameters[static_cast<std::size_t>(index)].name : "";
}

double BuiltInProjection::GetParamValue(int index) const
{
    return HasParameter(index) ? m_state.parameters[static_cast<std::size_t>(index)] : 0;
}

bool BuiltInProjection::SetParamValue(int index, double value)
{
    if (!HasParameter(index))
    {
        return false;
    }
    const auto slot = static_cast<std::size_t>(index);
    const ParameterRule& rule = m_facts->parameters[slot];
    if (!IsWithin(value, rule.least, rule.most))
    {
        return false;
    }
    m_state.parameters[slot] = value;
    Refresh();
    return true;
}

void BuiltInProjection::Skew(double& x, double& y) const
{
    const double turned = x * m_skewCos + y * m_skewSin;
    y = y * m_skewCos - x * m_skewSin;
    x = turned;
}

void BuiltInProjection::UnSkew(double& x, double& y) const
{
    const double turned = x * m_skewCos - y * m_skewSin;
    y = y * m_skewCos + x * m_skewSin;
    x = turned;
}

double BuiltInProjection::GetSkew() const
{
    return m_state.skew;
}

void BuiltInProjection::SetSkew(double degrees)
{
    if (std::isfinite(degrees))
    {
        m_state.skew = HeldLongitude(degrees);
        Refresh();
    }
}

void BuiltInProjection::OffsetSkew(double degrees)
{
    SetSkew(m_state.skew + degrees);
}

int BuiltInProjection::NMapLimitPts() const
{
    return m_ready ? OutlineCount() : 0;
}

bool BuiltInProjection::MapLimitPt(int index, double& x, double& y) const
{
    if (index < 0 || index >= NMapLimitPts())
    {
        return false;
    }
    const MapPoint point = Outline(index);
    x = point.x;
    y = point.y - m_originY;
    return true;
}

BuiltInProjection::Bounds BuiltInProjection::OutlineBounds() const
{
    const MapPoint first = Outline(0);
    Bounds bounds{first.x, first.y, first.x, first.y};
    for (int i = 1; i < OutlineCount(); ++i)
    {
        const MapPoint point = Outline(i);
        bounds = {std::min(bounds.minX, point.x), std::min(bounds.minY, point.y), std::max(bounds.maxX, point.x),
                  std::max(bounds.maxY, point.y)};
    }
    return bounds;
}

void BuiltInProjection::MinMaxMapXY(double& minX, double& minY, double& maxX, double& maxY) const
{
    const Bounds bounds = m_ready ? OutlineBounds() : Bounds{};
    minX = bounds.minX;
    minY = bounds.minY - m_originY;
    maxX = bounds.maxX;
    maxY = bounds.maxY - m_originY;
}

bool BuiltInProjection::IsLegal(const State& state) const
{
    bool legal = IsWithin(state.poleLat, -90, 90) && IsWithin(state.centreLat, -90, 90) &&
                 IsWithin(state.poleLon, -180, 180) && IsWithin(state.centreLon, -180, 180) &&
                 IsWithin(state.skew, -180, 180);
    for (std::size_t i = 0; i < m_facts->parameters.size(); ++i)
    {
        const ParameterRule& rule = m_facts->parameters[i];
        legal = legal && IsWithin(state.parameters[i], rule.least, rule.most);
    }
    return legal;
}

bool BuiltInProjection::TransferState(State& state, char*& cursor, unsigned long& remaining, bool read) const
{
    std::int32_t kind = m_facts->kind;
    if (!Transfer(kind, cursor, remaining, read) || kind != m_facts->kind)
    {
        return false;
    }
    for (double* field : {&state.poleLat, &state.poleLon, &state.centreLat, &state.centreLon, &state.skew})
    {
        if (!Transfer(*field, cursor, remaining, read))
        {
            return false;
        }
    }
    std::int32_t count = NumParams();
    bool done = Transfer(count, cursor, remaining, read) && count == NumParams();
    for (std::int32_t i = 0; done && i < count; ++i)
    {
        done = Transfer(state.parameters[static_cast<std::size_t>(i)], cursor, remaining, read);
    }
    return done;
}

bool BuiltInProjection::ReadWrite(char*& cursor, unsigned long& remaining, bool read)
{
    State state = m_state;
    if (!TransferState(state, cursor, remaining, read) || !IsLegal(state))
    {
        return false;
    }
    for (double* angle : {&state.poleLon, &state.centreLon, &state.skew})
    {
        *angle = HeldLongitude(*angle);
    }
    m_state = state;
    Refresh();
    return true;
}
} // namespace vorn::projections
