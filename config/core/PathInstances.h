#pragma once

#include "config/core/PathKinds.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vorn
{

/// The folders of one layout: for each defined path a list of instances, the last added being the effective one. A list
/// stays where it is while the table lives, whatever is added.
class PathInstances
{
public:
    using List = std::vector<std::string>;
    using Table = std::vector<List*>;

    /// Defined paths at or above this number are refused: the table would eat the memory.
    static constexpr int kLimit = 65'536;

    PathInstances() = default;
    PathInstances(const PathInstances& other);
    PathInstances& operator=(const PathInstances& other);
    PathInstances(PathInstances&&) = default;
    PathInstances& operator=(PathInstances&&) = default;

    /// Appends an instance and grows the table up to `path`. False for a number below 0 or from `kLimit` on.
    bool Add(int path, std::string_view folder);

    /// The list of a defined path, null when there is none.
    List* Find(int path) const;

    /// The effective instance; empty when there is none.
    std::string_view Effective(int path) const;

    bool Clear(int path);

    /// Removes or replaces the first instance that equals `folder`, whatever the case.
    bool Remove(int path, std::string_view folder);
    bool Replace(int path, std::string_view folder, std::string_view by);

    /// The table as applications see it. The lists belong to this object.
    Table* Lists();

private:
    void Grow(std::size_t size);

    std::vector<std::unique_ptr<List>> m_owned;
    Table m_lists;
};

} // namespace vorn
