#include "framework/dialog/CPrintDialog.h"

#include "framework/dialog/CommonDialogRun.h"

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

namespace
{
/// A block of global memory, locked for the length of a scope. Null blocks and records are allowed.
template <class T>
class Locked
{
public:
    explicit Locked(HGLOBAL block) : m_block(block), m_memory(block ? ::GlobalLock(block) : nullptr)
    {
    }
    ~Locked()
    {
        if (m_memory)
            ::GlobalUnlock(m_block);
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

    const T* Get() const
    {
        return static_cast<const T*>(m_memory);
    }

private:
    HGLOBAL m_block;
    void* m_memory;
};

/// A text of the names record, whose fields are offsets from its beginning.
CString NameAt(HGLOBAL names, WORD DEVNAMES::*field)
{
    const Locked<DEVNAMES> record(names);
    if (!record.Get())
        return {};
    return reinterpret_cast<const char*>(record.Get()) + record.Get()->*field;
}
} // namespace

CPrintDialog::CPrintDialog(BOOL printSetupOnly, DWORD flags, CWnd* parent) : CCommonDialog(parent), m_pd(m_record)
{
    m_pd.lStructSize = sizeof(m_pd);
    m_pd.Flags = flags | PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK;
    m_pd.lpfnPrintHook = vorn::CommonDialogHook;
    m_pd.lpfnSetupHook = vorn::CommonDialogHook;
    if (printSetupOnly)
        m_pd.Flags |= PD_PRINTSETUP;
    else
        m_pd.Flags |= PD_RETURNDC;
}

INT_PTR CPrintDialog::DoModal()
{
    const vorn::CommonDialogRun run(*this, m_pParentWnd);
    m_pd.hwndOwner = run.Owner();
    return ::PrintDlgA(&m_pd) ? IDOK : IDCANCEL;
}

BOOL CPrintDialog::GetDefaults()
{
    m_pd.Flags |= PD_RETURNDEFAULT;
    return ::PrintDlgA(&m_pd);
}

int CPrintDialog::GetCopies() const
{
    if (!(m_pd.Flags & PD_USEDEVMODECOPIES))
        return m_pd.nCopies;
    const Locked<DEVMODEA> mode(m_pd.hDevMode);
    return mode.Get() && (mode.Get()->dmFields & DM_COPIES) ? mode.Get()->dmCopies : 1;
}

BOOL CPrintDialog::PrintCollate() const
{
    return (m_pd.Flags & PD_COLLATE) != 0;
}

BOOL CPrintDialog::PrintSelection() const
{
    return (m_pd.Flags & PD_SELECTION) != 0;
}

BOOL CPrintDialog::PrintRange() const
{
    return (m_pd.Flags & PD_PAGENUMS) != 0;
}

BOOL CPrintDialog::PrintAll() const
{
    return !PrintRange() && !PrintSelection();
}

int CPrintDialog::GetFromPage() const
{
    return PrintRange() ? m_pd.nFromPage : -1;
}

int CPrintDialog::GetToPage() const
{
    return PrintRange() ? m_pd.nToPage : -1;
}

LPDEVMODEA CPrintDialog::GetDevMode() const
{
    return m_pd.hDevMode ? static_cast<LPDEVMODEA>(::GlobalLock(m_pd.hDevMode)) : nullptr;
}

CString CPrintDialog::GetDriverName() const
{
    return NameAt(m_pd.hDevNames, &DEVNAMES::wDriverOffset);
}

CString CPrintDialog::GetDeviceName() const
{
    return NameAt(m_pd.hDevNames, &DEVNAMES::wDeviceOffset);
}

CString CPrintDialog::GetPortName() const
{
    return NameAt(m_pd.hDevNames, &DEVNAMES::wOutputOffset);
}

HDC CPrintDialog::GetPrinterDC() const
{
    return m_pd.hDC;
}

HDC CPrintDialog::CreatePrinterDC()
{
    if (!m_pd.hDevNames)
        return nullptr;
    const Locked<DEVMODEA> mode(m_pd.hDevMode);
    m_pd.hDC = ::CreateDCA(GetDriverName(), GetDeviceName(), GetPortName(), mode.Get());
    return m_pd.hDC;
}
