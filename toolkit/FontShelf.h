#pragma once

#include "toolkit/ResourceKeys.h"
#include "toolkit/ResourceShelf.h"

namespace vorn
{

/// Fonts: only the youngest stay, and those that could not be made are tried again.
class FontShelf : public ResourceShelf<FontKey>
{
public:
    HFONT Get(const FontKey& key)
    {
        const CriticalSectionLock lock(&m_section);
        DropFailed();
        const std::uint32_t hash = key.Hash();
        const Kept* const found = Find(hash, key);
        return found != nullptr ? found->handle : Made(hash, key);
    }

private:
    static constexpr std::size_t kMost = 60;

    /// A font that could not be made is the newest: whatever is asked for next comes by here.
    void DropFailed()
    {
        if (const Kept* const newest = m_shelf.Newest(); newest != nullptr && newest->handle == nullptr)
        {
            m_shelf.RemoveNewest();
        }
    }

    HFONT Made(std::uint32_t hash, const FontKey& key)
    {
        const HFONT handle = Add(hash, key).handle;
        if (m_shelf.Size() > kMost)
        {
            m_shelf.RemoveOldest();
        }
        return handle;
    }
};

} // namespace vorn
