#include "family/VornChart/core/ViewDefinition.h"

#include "family/VornChart/core/Projection.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <new>
#include <optional>
#include <string>
#include <string_view>

namespace
{
/// The fields of a text, one after the other, each with its "|".
class FieldReader
{
public:
    explicit FieldReader(std::string_view text) : m_rest(text)
    {
    }

    /// The next field; none without its end.
    std::optional<std::string_view> Next()
    {
        const auto end = m_rest.find('|');
        if (end == std::string_view::npos)
        {
            return std::nullopt;
        }
        const std::string_view field = m_rest.substr(0, end);
        m_rest.remove_prefix(end + 1);
        return field;
    }

    bool Read(double& number)
    {
        const auto field = Next();
        return field && ReadAll(*field, number) && std::isfinite(number);
    }

    /// A number without sign.
    bool Read(int& number)
    {
        const auto field = Next();
        return field && !field->starts_with('-') && ReadAll(*field, number);
    }

    bool IsAtEnd() const
    {
        return m_rest.empty();
    }

private:
    template <typename Number>
    static bool ReadAll(std::string_view field, Number& number)
    {
        const char* end = field.data() + field.size();
        const auto result = std::from_chars(field.data(), end, number);
        return result.ec == std::errc() && result.ptr == end;
    }

    std::string_view m_rest;
};

bool Resize(std::vector<double>& numbers, int count)
{
    try
    {
        numbers.resize(static_cast<std::size_t>(count));
        return true;
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
}

bool ReadParams(FieldReader& reader, std::vector<double>& params)
{
    int count = 0;
    if (!reader.Read(count) || count > ViewDefinition::kMaxParams || !Resize(params, count))
    {
        return false;
    }
    return std::all_of(params.begin(), params.end(),
                       [&reader](double& param)
                       {
                           return reader.Read(param);
                       });
}

/// The shortest text that reads back as the same number.
void AppendNumber(std::string& text, double number)
{
    char buffer[32];
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer), std::isfinite(number) ? number : 0).ptr;
    text.append(buffer, end).push_back('|');
}

void AppendNumber(std::string& text, int number)
{
    text.append(std::to_string(number)).push_back('|');
}
} // namespace

ViewDefinition::ViewDefinition() = default;
ViewDefinition::ViewDefinition(const ViewDefinition&) = default;
ViewDefinition& ViewDefinition::operator=(const ViewDefinition&) = default;
ViewDefinition::~ViewDefinition() = default;

bool ViewDefinition::Parse(const char* text)
{
    FieldReader reader(text ? text : "");
    std::vector<double> params;
    int projection = 0;
    if (reader.Next() != "v1" || !reader.Read(projection) || !ReadParams(reader, params))
    {
        return false;
    }
    double numbers[9]{};
    if (!std::all_of(std::begin(numbers), std::end(numbers),
                     [&reader](double& number)
                     {
                         return reader.Read(number);
                     }) ||
        !reader.IsAtEnd())
    {
        return false;
    }
    mProjection = projection;
    mParams = std::move(params);
    const double* next = numbers;
    for (double* member : {&mLogX, &mLogY, &mMapX, &mMapY, &mScale, &mSeamLon, &mSkew, &mCenterLat, &mCenterLon})
    {
        *member = *next++;
    }
    return true;
}

CString ViewDefinition::Format() const
{
    const auto count = std::min(mParams.size(), static_cast<std::size_t>(kMaxParams));
    std::string text = "v1|";
    AppendNumber(text, std::max(mProjection, 0));
    AppendNumber(text, static_cast<int>(count));
    std::for_each_n(mParams.begin(), count,
                    [&text](double param)
                    {
                        AppendNumber(text, param);
                    });
    for (const double number : {mLogX, mLogY, mMapX, mMapY, mScale, mSeamLon, mSkew, mCenterLat, mCenterLon})
    {
        AppendNumber(text, number);
    }
    return {text.c_str()};
}

void ViewDefinition::LoadKey(const char* name)
{
    m_key = name;
}

const char* ViewDefinition::Key() const
{
    return m_key;
}

bool ViewDefinition::ApplyTo(Projection& projection) const
{
    bool done = true;
    const int count = std::min(static_cast<int>(mParams.size()), projection.NumParams());
    for (int i = 0; i < count; ++i)
    {
        done &= projection.SetParamValue(i, mParams[static_cast<std::size_t>(i)]);
    }
    const double poleLon = projection.IsCylindrical() ? mSeamLon - 180 : mCenterLon;
    done &= projection.SetMapPole(mCenterLat, poleLon);
    done &= projection.PanTo(mCenterLat, mCenterLon);
    projection.SetSkew(mSkew);
    return done && std::isfinite(mSkew);
}
