#pragma once

#include "family/VornChart/core/Export.h"
#include "framework/core/BaseTypes.h"
#include "framework/core/CString.h"

class CView;
struct CPrintInfo;

namespace Vornwald
{
class SynchObject;
}

/// What the chart library needs to know of the application that hosts it: its settings, its symbol font and its way
/// of printing. A host derives its own class from it (most derive from VornCommonApp, which knows the family's
/// settings) and registers one object of it early in its start-up.
///
/// The order of the virtual operations is part of the interface.
class VORNCHART_API VornChartApp
{
public:
    VornChartApp();
    VornChartApp(const VornChartApp&) = delete;
    VornChartApp& operator=(const VornChartApp&) = delete;

    /// Ends the registration when this object is the registered one.
    virtual ~VornChartApp();

    /// Registers @p app as the process's one application; null ends the registration. The object stays the caller's.
    static void Inst(VornChartApp* app);

    /// The registered application, null when there is none.
    static VornChartApp* Inst();

    /// Ends the registration; the object is not deleted.
    static void FreeInst();

    /// A new lock over a system critical section that spins @p spinCount times before it waits (0: the system's
    /// default). The caller deletes it. Null when memory is short.
    virtual Vornwald::SynchObject* CreateCriticalSection(DWORD spinCount);

    /// Asks the application to prepare printing of @p view; false here, which cancels the printing.
    virtual bool OnPreparePrinting(CView* view, CPrintInfo* info);

    /// The text that draws @p token in the symbol font; empty here.
    virtual CString GetVornGlyph(CString token);

    /// Whether the application runs as a trial version; FALSE here.
    virtual BOOL IsTrial();

    /// A text setting of the application; here always @p defaultValue (an empty text when that is null).
    virtual CString GetSettingString(const char* section, const char* key, const char* defaultValue);

    /// Stores a text setting; does nothing here.
    virtual void WriteSettingString(const char* section, const char* key, const char* value);

    /// A number setting of the application; here always @p defaultValue.
    virtual int GetSettingInt(const char* section, const char* key, int defaultValue);

    /// Stores a number setting; does nothing here.
    virtual void WriteSettingInt(const char* section, const char* key, int value);
};
