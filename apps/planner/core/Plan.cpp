#include "apps/planner/core/Plan.h"

#include <algorithm>

namespace vorn::planner
{

namespace
{

char Upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool IsSame(const std::string& a, const std::string& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char first, char second)
                      {
                          return Upper(first) == Upper(second);
                      });
}

} // namespace

const Place* FindPlace(const std::vector<Place>& places, const std::string& ident)
{
    const auto found = std::find_if(places.begin(), places.end(),
                                    [&ident](const Place& place)
                                    {
                                        return IsSame(place.ident, ident);
                                    });
    return found == places.end() ? nullptr : &*found;
}

} // namespace vorn::planner
