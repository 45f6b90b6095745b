#pragma once

#include "frame/CriticalSectionLock.h"
#include "toolkit/core/KeyedShelf.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace vorn
{

/// The objects of one kind that have been asked for, each with its key. Any thread may ask; equal requests at the same
/// time make one object.
template <class Key>
class ResourceShelf
{
public:
    ResourceShelf()
    {
        ::InitializeCriticalSection(&m_section);
    }
    ~ResourceShelf()
    {
        ::DeleteCriticalSection(&m_section);
    }
    ResourceShelf(const ResourceShelf&) = delete;
    ResourceShelf& operator=(const ResourceShelf&) = delete;

    /// The handle of the object of this key, made now if it is not there yet; null when it could not be made.
    auto Get(const Key& key)
    {
        const CriticalSectionLock lock(&m_section);
        const std::uint32_t hash = key.Hash();
        const Kept* const found = Find(hash, key);
        return (found != nullptr ? found : &Add(hash, key))->handle;
    }
    std::size_t Size()
    {
        const CriticalSectionLock lock(&m_section);
        return m_shelf.Size();
    }
    void Clear()
    {
        const CriticalSectionLock lock(&m_section);
        m_shelf.Clear();
    }

protected:
    /// An object with what the search looks at close by.
    struct Kept
    {
        explicit Kept(const Key& its) : key(its), object(its.Make()), handle(object.GetHandle())
        {
        }

        Key key;
        decltype(key.Make()) object;
        decltype(object.GetHandle()) handle;
    };

    const Kept* Find(std::uint32_t hash, const Key& key) const
    {
        return m_shelf.Find(hash,
                            [&key](const Kept& kept)
                            {
                                return kept.key == key;
                            });
    }
    const Kept& Add(std::uint32_t hash, const Key& key)
    {
        return m_shelf.Add(hash, std::make_unique<Kept>(key));
    }

    CRITICAL_SECTION m_section;
    KeyedShelf<Kept> m_shelf;
};

} // namespace vorn
