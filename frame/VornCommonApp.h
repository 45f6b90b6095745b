#pragma once

#include "family/VornChart/VornChartApp.h"
#include "frame/core/Export.h"
#include "framework/core/CString.h"
#include "framework/core/Map.h"

class ConversionBoy;

/// The library's view of the host application: its settings, the glyphs of the symbol font, its unit converter. The
/// host's application class derives from it, beside the framework's application class and behind it, so that the
/// application's name is known when this object is made; the host registers its object by Inst() early in its start-up.
///
/// The settings are the host's own: those of the settings manager's first record (see AppRegData). The order of the
/// virtual operations is part of the interface.
class VORNCOMMON_API VornCommonApp : public VornChartApp
{
public:
    /// Reads the user's units, and makes the settings manager with that.
    VornCommonApp();
    /// Leaves the unit converter alive until the process ends: others may still hold it.
    ~VornCommonApp() override;

    /// Registers the host's application object with the chart library: there is one for both libraries.
    static void Inst(VornChartApp* app);

    /// The registered application, null when there is none. An application registered with the chart library alone
    /// must be a VornCommonApp as well; that is not checked.
    static VornCommonApp* Inst();

    /// Ends the registration.
    static void FreeInst();

    /// The unit converter; it lives until the process ends.
    ConversionBoy* GetConversionBoy();

    /// Whether the view's standard preparation of printing succeeded; false without a view.
    bool OnPreparePrinting(CView* view, CPrintInfo* info) override;

    /// The one-character text that draws a token ("NM", "FL", "->") in the symbol font, whatever the token's case;
    /// empty for an unknown one, which is remembered as such.
    CString GetVornGlyph(CString token) override;

    BOOL IsTrial() override;

    CString GetSettingString(const char* section, const char* key, const char* defaultValue) override;
    /// A null value deletes the entry, a null key the section. A failure is silent.
    void WriteSettingString(const char* section, const char* key, const char* value) override;
    int GetSettingInt(const char* section, const char* key, int defaultValue) override;
    void WriteSettingInt(const char* section, const char* key, int value) override;

    /// Whether the application runs as a beta version; FALSE here.
    virtual BOOL IsBeta();

protected:
    /// Enters every token of the symbol font into the glyph map.
    void InitVornGlyphMap();

private:
    ConversionBoy* m_conversionBoy;
    CMapStringToString m_glyphs; ///< token in upper case to its text; empty until the first use
};

/// The unit converter of the registered application, null when there is none.
VORNCOMMON_API ConversionBoy* GetConversionBoy();
