#include "framework/controls/CRichEditCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

namespace
{
/// The library stays loaded to the end: windows of its classes may live as long.
bool IsLoaded(LPCSTR library)
{
    char path[MAX_PATH] = "";
    const UINT length = ::GetSystemDirectoryA(path, MAX_PATH);
    if (length == 0 || length + ::lstrlenA(library) + 1u >= MAX_PATH)
        return false;
    // From the system's folder alone: a file of the same name beside the program is not meant.
    ::lstrcatA(::lstrcatA(path, "\\"), library);
    return ::LoadLibraryA(path) != nullptr;
}
} // namespace

BOOL AfxInitRichEdit()
{
    static const bool loaded = IsLoaded("riched32.dll");
    return loaded;
}

BOOL AfxInitRichEdit2()
{
    static const bool loaded = IsLoaded("riched20.dll");
    return loaded;
}

CRichEditCtrl::CRichEditCtrl() = default;

BOOL CRichEditCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return AfxInitRichEdit2() && CWnd::Create("RichEdit20A", nullptr, style, rect, parent, id);
}

COLORREF CRichEditCtrl::SetBackgroundColor(BOOL systemColour, COLORREF colour)
{
    return static_cast<COLORREF>(
        Ask(*this, EM_SETBKGNDCOLOR, static_cast<WPARAM>(systemColour), static_cast<LPARAM>(colour)));
}

void CRichEditCtrl::GetRect(LPRECT rect) const
{
    Ask(*this, EM_GETRECT, 0, rect);
}

void CRichEditCtrl::SetRect(LPCRECT rect)
{
    Ask(*this, EM_SETRECT, 0, rect);
}

BOOL CRichEditCtrl::SetReadOnly(BOOL readOnly)
{
    return Ask(*this, EM_SETREADONLY, static_cast<WPARAM>(readOnly));
}

void CRichEditCtrl::SetOptions(WORD operation, DWORD options)
{
    Ask(*this, EM_SETOPTIONS, operation, static_cast<LPARAM>(options));
}

BOOL CRichEditCtrl::SetAutoURLDetect(BOOL enable)
{
    return Ask(*this, EM_AUTOURLDETECT, static_cast<WPARAM>(enable)) == 0;
}

DWORD CRichEditCtrl::SetEventMask(DWORD mask)
{
    return static_cast<DWORD>(Ask(*this, EM_SETEVENTMASK, 0, static_cast<LPARAM>(mask)));
}

long CRichEditCtrl::GetEventMask() const
{
    return Ask(*this, EM_GETEVENTMASK);
}

void CRichEditCtrl::RequestResize()
{
    Ask(*this, EM_REQUESTRESIZE);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMATA& format) const
{
    format.cbSize = sizeof(format);
    return static_cast<DWORD>(Ask(*this, EM_GETCHARFORMAT, SCF_DEFAULT, &format));
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMATA& format)
{
    format.cbSize = sizeof(format);
    return Ask(*this, EM_SETCHARFORMAT, SCF_DEFAULT, &format);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMATA& format) const
{
    format.cbSize = sizeof(format);
    return static_cast<DWORD>(Ask(*this, EM_GETCHARFORMAT, SCF_SELECTION, &format));
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMATA& format)
{
    format.cbSize = sizeof(format);
    return Ask(*this, EM_SETCHARFORMAT, SCF_SELECTION, &format);
}

BOOL CRichEditCtrl::SetWordCharFormat(CHARFORMATA& format)
{
    format.cbSize = sizeof(format);
    return Ask(*this, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, &format);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT& format) const
{
    format.cbSize = sizeof(format);
    return static_cast<DWORD>(Ask(*this, EM_GETPARAFORMAT, 0, &format));
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT& format)
{
    format.cbSize = sizeof(format);
    return Ask(*this, EM_SETPARAFORMAT, 0, &format);
}

long CRichEditCtrl::StreamIn(int format, EDITSTREAM& stream)
{
    return Ask(*this, EM_STREAMIN, static_cast<WPARAM>(format), &stream);
}

long CRichEditCtrl::StreamOut(int format, EDITSTREAM& stream)
{
    return Ask(*this, EM_STREAMOUT, static_cast<WPARAM>(format), &stream);
}

long CRichEditCtrl::FormatRange(FORMATRANGE* range, BOOL display)
{
    return Ask(*this, EM_FORMATRANGE, static_cast<WPARAM>(display), range);
}

BOOL CRichEditCtrl::DisplayBand(LPRECT rect)
{
    return Ask(*this, EM_DISPLAYBAND, 0, rect);
}

BOOL CRichEditCtrl::SetTargetDevice(HDC dc, long lineWidth)
{
    return Ask(*this, EM_SETTARGETDEVICE, reinterpret_cast<WPARAM>(dc), static_cast<LPARAM>(lineWidth));
}
