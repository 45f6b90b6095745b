#include "config/core/PathInstances.h"

#include "frame/core/TextCase.h"

#include <algorithm>

namespace vorn
{

namespace
{

PathInstances::List::iterator FindNoCase(PathInstances::List& list, std::string_view folder)
{
    return std::find_if(list.begin(), list.end(),
                        [folder](const std::string& instance)
                        {
                            return EqualsNoCase(instance, folder);
                        });
}

/// Does something with the first instance that equals `folder`; false when there is none.
template <class Act>
bool WithFound(PathInstances::List* list, std::string_view folder, Act act)
{
    if (list == nullptr)
        return false;
    const auto found = FindNoCase(*list, folder);
    if (found == list->end())
        return false;
    act(*list, found);
    return true;
}

} // namespace

PathInstances::PathInstances(const PathInstances& other)
{
    Grow(other.m_lists.size());
    for (std::size_t i = 0; i < m_lists.size(); ++i)
        *m_lists[i] = *other.m_lists[i];
}

PathInstances& PathInstances::operator=(const PathInstances& other)
{
    if (this != &other)
        *this = PathInstances(other);
    return *this;
}

bool PathInstances::Add(int path, std::string_view folder)
{
    if (path < 0 || path >= kLimit)
        return false;
    const auto index = static_cast<std::size_t>(path);
    if (index >= m_lists.size())
        Grow(index + 1);
    m_lists[index]->emplace_back(folder);
    return true;
}

PathInstances::List* PathInstances::Find(int path) const
{
    return path >= 0 && static_cast<std::size_t>(path) < m_lists.size() ? m_lists[static_cast<std::size_t>(path)]
                                                                        : nullptr;
}

std::string_view PathInstances::Effective(int path) const
{
    const List* const list = Find(path);
    return list != nullptr && !list->empty() ? std::string_view(list->back()) : std::string_view();
}

bool PathInstances::Clear(int path)
{
    List* const list = Find(path);
    if (list == nullptr)
        return false;
    list->clear();
    return true;
}

bool PathInstances::Remove(int path, std::string_view folder)
{
    return WithFound(Find(path), folder,
                     [](List& list, List::iterator found)
                     {
                         list.erase(found);
                     });
}

bool PathInstances::Replace(int path, std::string_view folder, std::string_view by)
{
    return WithFound(Find(path), folder,
                     [by](List&, List::iterator found)
                     {
                         *found = by;
                     });
}

PathInstances::Table* PathInstances::Lists()
{
    return &m_lists;
}

void PathInstances::Grow(std::size_t size)
{
    while (m_lists.size() < size)
    {
        m_owned.push_back(std::make_unique<List>());
        m_lists.push_back(m_owned.back().get());
    }
}

} // namespace vorn
