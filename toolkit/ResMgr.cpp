#include "toolkit/ResMgr.h"

#include "files/core/NoThrow.h"
#include "frame/CriticalSectionLock.h"
#include "toolkit/FontDescription.h"
#include "toolkit/ManagedObjects.h"
#include "toolkit/core/KeyedShelf.h"
#include "toolkit/core/WordHash.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace
{

constexpr std::size_t kMostFonts = 60;

/// A shelf with its lock, which is held as long as a Locked lives.
template <class Managed>
class GuardedShelf : public vorn::KeyedShelf<Managed>
{
public:
    GuardedShelf()
    {
        ::InitializeCriticalSection(&m_section);
    }
    ~GuardedShelf()
    {
        ::DeleteCriticalSection(&m_section);
    }
    GuardedShelf(const GuardedShelf&) = delete;
    GuardedShelf& operator=(const GuardedShelf&) = delete;

    CRITICAL_SECTION* Section()
    {
        return &m_section;
    }

private:
    CRITICAL_SECTION m_section;
};

/// The shelf's object made of these values, made now if it is not there yet.
template <class Managed, class Matches, class... Values>
Managed& FoundOrMade(GuardedShelf<Managed>& shelf, std::uint32_t hash, Matches matches, Values... values)
{
    Managed* const found = shelf.Find(hash, matches);
    return found != nullptr ? *found : shelf.Add(hash, std::make_unique<Managed>(values...));
}

template <class Managed>
std::size_t LockedSize(GuardedShelf<Managed>& shelf)
{
    const CriticalSectionLock lock(shelf.Section());
    return shelf.Size();
}

template <class Managed>
void LockedClear(GuardedShelf<Managed>& shelf)
{
    const CriticalSectionLock lock(shelf.Section());
    shelf.Clear();
}

bool IsFailed(const ManagedFont& font)
{
    return font.GetHandle() == nullptr;
}

std::uint32_t HashOf(const LOGFONTA& description)
{
    std::uint32_t words[sizeof description / sizeof(std::uint32_t)];
    static_assert(sizeof words == sizeof description);
    std::memcpy(words, &description, sizeof words);
    return vorn::WordHash(words);
}

class FontShelf : public GuardedShelf<ManagedFont>
{
public:
    HFONT Get(const LOGFONTA& description)
    {
        const std::uint32_t hash = HashOf(description);
        const ManagedFont* const found = Find(hash,
                                              [&](const ManagedFont& font)
                                              {
                                                  return !IsFailed(font) && IsMadeOf(font, description);
                                              });
        if (m_hasFailed)
        {
            DropFailed(found);
        }
        return found != nullptr ? found->GetHandle() : Make(hash, description);
    }

private:
    static bool IsMadeOf(const ManagedFont& font, const LOGFONTA& description)
    {
        return std::memcmp(&font.GetDescription(), &description, sizeof description) == 0;
    }

    HFONT Make(std::uint32_t hash, const LOGFONTA& description)
    {
        const HFONT handle = Add(hash, std::make_unique<ManagedFont>(description)).GetHandle();
        m_hasFailed |= handle == nullptr;
        if (Size() > kMostFonts)
        {
            RemoveOldest();
        }
        return handle;
    }

    /// A search looks from the newest font backward and takes away the failed ones that it passes.
    void DropFailed(const ManagedFont* found)
    {
        RemoveNewerThan(found, IsFailed);
        m_hasFailed = found != nullptr;
    }

    bool m_hasFailed = false; ///< whether there may be fonts without a handle
};

} // namespace

struct ResMgr::Shelves
{
    GuardedShelf<ManagedPen> pens;
    GuardedShelf<ManagedBrush> brushes;
    FontShelf fonts;
};

ResMgr* ResMgr::s_instance = nullptr;

ResMgr* ResMgr::Inst()
{
    if (s_instance == nullptr)
    {
        s_instance = vorn::NoThrow<ResMgr*>(nullptr,
                                            []
                                            {
                                                return new ResMgr;
                                            }); // until FreeInst()
    }
    return s_instance;
}

BOOL ResMgr::FreeInst()
{
    const std::unique_ptr<ResMgr> freed(s_instance);
    s_instance = nullptr;
    return freed != nullptr;
}

ResMgr::ResMgr() : m_shelves(std::make_unique<Shelves>()), m_colors(ColorContext::Instance())
{
}

ResMgr::~ResMgr() = default;

HPEN ResMgr::GetPen(int style, int width, COLORREF color)
{
    const auto isWanted = [=](const ManagedPen& pen)
    {
        return pen.GetStyle() == style && pen.GetWidth() == width && pen.GetColor() == color;
    };
    const std::uint32_t hash =
        vorn::WordHash({static_cast<std::uint32_t>(style), static_cast<std::uint32_t>(width), color});
    return vorn::NoThrow<HPEN>(nullptr,
                               [&]
                               {
                                   const CriticalSectionLock lock(m_shelves->pens.Section());
                                   return FoundOrMade(m_shelves->pens, hash, isWanted, style, width, color).GetHandle();
                               });
}

HBRUSH ResMgr::GetBrush(UINT style, COLORREF color, LONG hatch)
{
    const auto isWanted = [=](const ManagedBrush& brush)
    {
        return brush.GetStyle() == style && brush.GetColor() == color && brush.GetHatch() == hatch;
    };
    const std::uint32_t hash = vorn::WordHash({style, color, static_cast<std::uint32_t>(hatch)});
    return vorn::NoThrow<HBRUSH>(
        nullptr,
        [&]
        {
            const CriticalSectionLock lock(m_shelves->brushes.Section());
            return FoundOrMade(m_shelves->brushes, hash, isWanted, style, color, hatch).GetHandle();
        });
}

HFONT ResMgr::GetFont(const LOGFONTA* description)
{
    if (description == nullptr)
    {
        return nullptr;
    }
    return vorn::NoThrow<HFONT>(nullptr,
                                [&]
                                {
                                    const LOGFONTA wanted = vorn::Normalised(*description);
                                    const CriticalSectionLock lock(m_shelves->fonts.Section());
                                    return m_shelves->fonts.Get(wanted);
                                });
}

int ResMgr::GetResourceCount()
{
    return static_cast<int>(LockedSize(m_shelves->pens) + LockedSize(m_shelves->brushes) +
                            LockedSize(m_shelves->fonts));
}

void ResMgr::PurgeResources()
{
    LockedClear(m_shelves->pens);
    LockedClear(m_shelves->brushes);
    LockedClear(m_shelves->fonts);
}
