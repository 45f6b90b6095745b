#include "toolkit/ResMgr.h"

#include "files/core/NoThrow.h"
#include "toolkit/FontShelf.h"
#include "toolkit/ResourceKeys.h"
#include "toolkit/ResourceShelf.h"

struct ResMgr::Shelves
{
    vorn::ResourceShelf<vorn::PenKey> pens;
    vorn::ResourceShelf<vorn::BrushKey> brushes;
    vorn::FontShelf fonts;
};

namespace
{

/// The handle of `key`; null as well when memory runs out.
template <class Shelf, class Key>
auto HandleOf(Shelf& shelf, const Key& key)
{
    return vorn::NoThrow<decltype(shelf.Get(key))>(nullptr,
                                                   [&]
                                                   {
                                                       return shelf.Get(key);
                                                   });
}

} // namespace

ResMgr* ResMgr::s_instance = nullptr;

ResMgr* ResMgr::Inst()
{
    if (s_instance == nullptr)
    {
        s_instance = vorn::NoThrow<ResMgr*>(nullptr,
                                            []
                                            {
                                                return new ResMgr; // FreeInst() deletes it
                                            });
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
    return HandleOf(m_shelves->pens, vorn::PenKey{style, width, color});
}

HBRUSH ResMgr::GetBrush(UINT style, COLORREF color, LONG hatch)
{
    return HandleOf(m_shelves->brushes, vorn::BrushKey{style, color, hatch});
}

HFONT ResMgr::GetFont(const LOGFONTA* description)
{
    return description != nullptr ? HandleOf(m_shelves->fonts, vorn::FontKey(*description)) : nullptr;
}

int ResMgr::GetResourceCount()
{
    return static_cast<int>(m_shelves->pens.Size() + m_shelves->brushes.Size() + m_shelves->fonts.Size());
}

void ResMgr::PurgeResources()
{
    m_shelves->pens.Clear();
    m_shelves->brushes.Clear();
    m_shelves->fonts.Clear();
}
