#include "framework/bars/CToolBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/include/afxres.h"
#include "framework/window/ModuleState.h"
#include <span>
#include <vector>

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace
{
constexpr int kSeparatorWidth = 8;

/// Resource of type 241: version, picture size, number of items, command ids.
const auto kToolBarResource = MAKEINTRESOURCE(241);

struct ToolBarHeader
{
    WORD version;
    WORD width;
    WORD height;
    WORD itemCount;
};

/// The words of a toolbar resource; empty when it is missing or shorter than it says.
std::span<const WORD> ToolBarWords(HINSTANCE module, LPCTSTR name)
{
    HRSRC resource = ::FindResource(module, name, kToolBarResource);
    HGLOBAL loaded = resource ? ::LoadResource(module, resource) : nullptr;
    const auto* words = loaded ? static_cast<const WORD*>(::LockResource(loaded)) : nullptr;
    const std::size_t size = words ? ::SizeofResource(module, resource) : 0;
    if (size < sizeof(ToolBarHeader))
        return {};
    const std::size_t needed = sizeof(ToolBarHeader) + sizeof(WORD) * words[3];
    return size < needed ? std::span<const WORD>() : std::span<const WORD>(words, needed / sizeof(WORD));
}
} // namespace

CToolBar::CToolBar() = default;

CToolBar::~CToolBar()
{
    m_bAutoDelete = FALSE; // the end of the window must not end the object once more
    CControlBar::DestroyWindow();
}

BOOL CToolBar::Create(CWnd* parent, DWORD style, UINT id)
{
    return CreateEx(parent, 0, style, CRect(0, 0, 0, 0), id);
}

BOOL CToolBar::CreateEx(CWnd* parent, DWORD controlStyle, DWORD style, CRect borders, UINT id)
{
    const INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    SetBorders(&borders);
    SetBarStyle(style & CBRS_ALL);
    controlStyle |= (style & ~CBRS_ALL) | CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    if (style & CBRS_TOOLTIPS)
        controlStyle |= TBSTYLE_TOOLTIPS;
    if (!CWnd::Create(TOOLBARCLASSNAME, nullptr, controlStyle, CRect(0, 0, 0, 0), parent, id))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    SetSizes(m_buttonSize, m_imageSize);
    return TRUE;
}

void CToolBar::SetSizes(SIZE button, SIZE image)
{
    m_buttonSize = button;
    m_imageSize = image;
    if (!m_hWnd)
        return;
    SendMessage(TB_SETBITMAPSIZE, 0, MAKELPARAM(image.cx, image.cy));
    SendMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(button.cx, button.cy));
}

void CToolBar::SetHeight(int height)
{
    m_height = height;
}

BOOL CToolBar::LoadToolBar(UINT id)
{
    return LoadToolBar(MAKEINTRESOURCE(id));
}

BOOL CToolBar::LoadToolBar(LPCTSTR name)
{
    const auto words = ToolBarWords(AfxFindResourceHandle(name, kToolBarResource), name);
    if (words.empty())
        return FALSE;
    const auto items = words.subspan(sizeof(ToolBarHeader) / sizeof(WORD));
    const std::vector<UINT> ids(items.begin(), items.end());
    // A border of 3 pixels at the sides and 3 above and below the picture, one more for the button's edge.
    const SIZE image{words[1], words[2]};
    SetSizes(SIZE{image.cx + 7, image.cy + 7}, image);
    return SetButtons(ids.data(), static_cast<int>(ids.size())) && LoadBitmap(name);
}

BOOL CToolBar::LoadBitmap(UINT id)
{
    return LoadBitmap(MAKEINTRESOURCE(id));
}

BOOL CToolBar::LoadBitmap(LPCTSTR name)
{
    HINSTANCE module = AfxFindResourceHandle(name, RT_BITMAP);
    auto* images = static_cast<HBITMAP>(::LoadImage(module, name, IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS));
    if (images && SetBitmap(images))
        return TRUE;
    ::DeleteObject(images);
    return FALSE;
}

BOOL CToolBar::SetBitmap(HBITMAP images)
{
    BITMAP description{};
    if (!images || !::GetObject(images, sizeof(description), &description) || m_imageSize.cx <= 0)
        return FALSE;
    const auto count = static_cast<WPARAM>(description.bmWidth / m_imageSize.cx);
    LRESULT added = -1;
    if (m_images.GetSafeHandle())
    {
        TBREPLACEBITMAP replace{nullptr, reinterpret_cast<UINT_PTR>(m_images.GetSafeHandle()), nullptr,
                                reinterpret_cast<UINT_PTR>(images), static_cast<int>(count)};
        added = SendMessage(TB_REPLACEBITMAP, 0, reinterpret_cast<LPARAM>(&replace)) ? 0 : -1;
    }
    else
    {
        TBADDBITMAP add{nullptr, reinterpret_cast<UINT_PTR>(images)};
        added = SendMessage(TB_ADDBITMAP, count, reinterpret_cast<LPARAM>(&add));
    }
    if (added < 0)
        return FALSE;
    m_images.DeleteObject();
    return m_images.Attach(images);
}

BOOL CToolBar::SetButtons(const UINT* ids, int count)
{
    if (count < 1 || !m_hWnd)
        return FALSE;
    while (SendMessage(TB_DELETEBUTTON, 0))
    {
    }
    int image = 0;
    for (int i = 0; i < count; ++i)
    {
        TBBUTTON button{};
        button.fsState = TBSTATE_ENABLED;
        if (!ids || ids[i] == ID_SEPARATOR)
        {
            button.fsStyle = TBSTYLE_SEP;
            button.iBitmap = kSeparatorWidth;
        }
        else
        {
            button.idCommand = static_cast<int>(ids[i]);
            button.iBitmap = image++;
        }
        button.iString = -1;
        if (!SendMessage(TB_ADDBUTTONS, 1, reinterpret_cast<LPARAM>(&button)))
            return FALSE;
    }
    m_nCount = count;
    WrapButtons();
    return TRUE;
}
