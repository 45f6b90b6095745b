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
        const std::uint32_t hash = key.Hash();
        const Kept* const found = m_shelf.Find(hash,
                                               [&key](const Kept& kept)
                                               {
                                                   return kept.key == key && !HasFailed(kept);
                                               });
        if (m_anyFailed)
        {
            // As a search from the newest font backward would that drops the failed ones it passes.
            m_shelf.RemoveNewerThan(found, HasFailed);
            m_anyFailed = found != nullptr;
        }
        return found != nullptr ? found->handle : Made(hash, key);
    }

private:
    static constexpr std::size_t kMost = 60;

    static bool HasFailed(const Kept& kept)
    {
        return kept.handle == nullptr;
    }

    HFONT Made(std::uint32_t hash, const FontKey& key)
    {
        const HFONT handle = Add(hash, key).handle;
        m_anyFailed |= handle == nullptr;
        if (m_shelf.Size() > kMost)
        {
            m_shelf.RemoveOldest();
        }
        return handle;
    }

    bool m_anyFailed = false; ///< whether a font without a handle may be there
};

} // namespace vorn
