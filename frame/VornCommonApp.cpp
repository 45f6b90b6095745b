#include "frame/VornCommonApp.h"

#include "aviation/ConversionBoy.h"
#include "config/AppRegMgr.h"
#include "frame/core/GlyphTable.h"
#include "framework/core/AsciiText.h"
#include "framework/frames/CView.h"

#include <algorithm>

namespace
{
/// Characters of a token that is raised without memory of its own.
constexpr int kShortToken = 15;
static_assert(kShortToken >= vorn::kLongestGlyphToken);

constexpr const char* kHost = nullptr;
} // namespace

VornCommonApp::VornCommonApp() : m_conversionBoy(new ConversionBoy) // lives until the process ends
{
}

VornCommonApp::~VornCommonApp() = default;

void VornCommonApp::Inst(VornChartApp* app)
{
    VornChartApp::Inst(app);
}

VornCommonApp* VornCommonApp::Inst()
{
    return static_cast<VornCommonApp*>(VornChartApp::Inst());
}

void VornCommonApp::FreeInst()
{
    VornChartApp::FreeInst();
}

ConversionBoy* VornCommonApp::GetConversionBoy()
{
    return m_conversionBoy;
}

ConversionBoy* GetConversionBoy()
{
    VornCommonApp* app = VornCommonApp::Inst();
    return app ? app->GetConversionBoy() : nullptr;
}

bool VornCommonApp::OnPreparePrinting(CView* view, CPrintInfo* info)
{
    return view && view->DoPreparePrinting(info);
}

CString VornCommonApp::GetVornGlyph(CString token)
{
    if (m_glyphs.IsEmpty())
    {
        InitVornGlyphMap();
    }
    if (token.GetLength() > kShortToken)
    {
        return m_glyphs[token.MakeUpper()]; // unknown, and remembered
    }
    // Called for every label drawn: raised in place, the caller's text would have to be copied first.
    char raised[kShortToken + 1] = "";
    const char* text = token;
    std::transform(text, text + token.GetLength() + 1, raised, vorn::ToUpperAscii);
    return m_glyphs[raised];
}

void VornCommonApp::InitVornGlyphMap()
{
    if (m_glyphs.IsEmpty())
    {
        m_glyphs.InitHashTable(vorn::kGlyphBuckets);
    }
    for (const vorn::Glyph& glyph : vorn::GlyphTable())
    {
        m_glyphs.SetAt(glyph.token, glyph.text);
    }
}

BOOL VornCommonApp::IsTrial()
{
    return FALSE;
}

BOOL VornCommonApp::IsBeta()
{
    return FALSE;
}

CString VornCommonApp::GetSettingString(const char* section, const char* key, const char* defaultValue)
{
    return AppRegMgr::Instance()->ReadVornString(section, key, defaultValue, kHost);
}

void VornCommonApp::WriteSettingString(const char* section, const char* key, const char* value)
{
    AppRegMgr::Instance()->WriteVornString(section, key, value, kHost);
}

int VornCommonApp::GetSettingInt(const char* section, const char* key, int defaultValue)
{
    return AppRegMgr::Instance()->ReadVornInt(section, key, defaultValue, kHost);
}

void VornCommonApp::WriteSettingInt(const char* section, const char* key, int value)
{
    AppRegMgr::Instance()->WriteVornInt(section, key, value, kHost);
}
