#include "apps/sample/ui/PicturePane.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

constexpr double kStep = 1.25;
constexpr int kPan = 60;
constexpr int kSquare = 8; // of the chequered ground

struct Color
{
    BYTE red;
    BYTE green;
    BYTE blue;
};

constexpr Color kAround = {0x2B, 0x33, 0x3D};
constexpr Color kLight = {0xFF, 0xFF, 0xFF};
constexpr Color kDark = {0xD6, 0xDA, 0xE0};

// What the window shows of one axis: for each of its pixels the picture's, or -1.
std::vector<int> Places(int window, double first, double zoom, int picture)
{
    std::vector<int> places(static_cast<std::size_t>(window));
    for (int i = 0; i < window; ++i)
    {
        const double place = std::floor((i + 0.5 - first) / zoom);
        places[static_cast<std::size_t>(i)] = place >= 0 && place < picture ? static_cast<int>(place) : -1;
    }
    return places;
}

const BYTE* Row(const DIB& picture, int y)
{
    const bool isTopDown = picture.BitmapInfo()->bmiHeader.biHeight < 0;
    const int stored = isTopDown ? y : picture.Height() - 1 - y;
    return picture.Bits() + static_cast<std::ptrdiff_t>(stored) * picture.BytesPerScan();
}

BYTE Mixed(BYTE over, BYTE ground, BYTE alpha)
{
    return static_cast<BYTE>((over * alpha + ground * (255 - alpha) + 127) / 255);
}

void Put(BYTE* to, Color color)
{
    to[0] = color.blue;
    to[1] = color.green;
    to[2] = color.red;
}

Color Ground(int x, int y)
{
    return (x / kSquare + y / kSquare) % 2 == 0 ? kLight : kDark;
}

void PutOver(BYTE* to, const BYTE* pixel, Color ground)
{
    to[0] = Mixed(pixel[0], ground.blue, pixel[3]);
    to[1] = Mixed(pixel[1], ground.green, pixel[3]);
    to[2] = Mixed(pixel[2], ground.red, pixel[3]);
}

} // namespace

BEGIN_MESSAGE_MAP(PicturePane, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_CAPTURECHANGED()
ON_WM_MOUSEWHEEL()
ON_WM_SETCURSOR()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_DROPFILES()
END_MESSAGE_MAP()

BOOL PicturePane::Create(CWnd& view, UINT id)
{
    const char* const name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return CWnd::CreateEx(WS_EX_ACCEPTFILES, name, "Picture", WS_CHILD | WS_TABSTOP, CRect(), &view, id);
}

void PicturePane::Show(const DIB* picture)
{
    m_picture = picture != nullptr && picture->BitmapInfo() != nullptr ? picture : nullptr;
    m_zoom.SetPicture(m_picture != nullptr ? vorn::Extents{picture->Width(), picture->Height()} : vorn::Extents{});
    Changed();
}

void PicturePane::Fit()
{
    m_zoom.Fit();
    Changed();
}

void PicturePane::ShowActualSize()
{
    m_zoom.ShowActualSize();
    Changed();
}

void PicturePane::ZoomIn()
{
    m_zoom.ZoomBy(kStep);
    Changed();
}

void PicturePane::ZoomOut()
{
    m_zoom.ZoomBy(1 / kStep);
    Changed();
}

bool PicturePane::TakeKey(UINT key)
{
    switch (key)
    {
    case VK_ADD:
    case VK_OEM_PLUS:
        ZoomIn();
        return true;
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
        ZoomOut();
        return true;
    case VK_HOME:
        Fit();
        return true;
    case VK_END:
        ShowActualSize();
        return true;
    case VK_LEFT:
        m_zoom.PanBy(kPan, 0);
        break;
    case VK_RIGHT:
        m_zoom.PanBy(-kPan, 0);
        break;
    case VK_UP:
        m_zoom.PanBy(0, kPan);
        break;
    case VK_DOWN:
        m_zoom.PanBy(0, -kPan);
        break;
    default:
        return false;
    }
    Invalidate(FALSE);
    return true;
}

const vorn::PictureZoom& PicturePane::Zoom() const
{
    return m_zoom;
}

const std::string& PicturePane::DroppedFile() const
{
    return m_dropped;
}

void PicturePane::Changed()
{
    m_isScaled = false;
    if (m_hWnd == nullptr)
        return;
    Invalidate(FALSE);
    Tell(kMoved);
}

void PicturePane::Tell(UINT code)
{
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), code), reinterpret_cast<LPARAM>(m_hWnd));
}

BOOL PicturePane::OnEraseBkgnd(CDC*)
{
    return TRUE; // every pixel is painted
}

void PicturePane::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    const double before = m_zoom.Zoom();
    m_zoom.SetWindow({width, height});
    m_isScaled = m_isScaled && m_zoom.Zoom() == before;
    Invalidate(FALSE);
}

// Smaller than it is, a picture is averaged; it is done once for each size.
const DIB& PicturePane::Scaled()
{
    if (m_zoom.Zoom() >= 1)
        return *m_picture;
    const vorn::Extents size = m_zoom.Scaled();
    if (!m_isScaled)
        m_isScaled = m_scaled.HQResize(size.width, size.height, const_cast<DIB*>(m_picture));
    return m_isScaled ? m_scaled : *m_picture;
}

void PicturePane::Compose(DIB& target)
{
    for (int y = 0; y < target.Height(); ++y)
    {
        BYTE* to = target.Bits() + static_cast<std::ptrdiff_t>(y) * target.BytesPerScan();
        for (int x = 0; x < target.Width(); ++x, to += 3)
            Put(to, kAround);
    }
    if (m_picture == nullptr)
        return;
    const DIB& source = Scaled();
    const double zoom = static_cast<double>(m_zoom.Scaled().width) / source.Width();
    const double zoomDown = static_cast<double>(m_zoom.Scaled().height) / source.Height();
    const int left = static_cast<int>(std::lround(m_zoom.Left()));
    const int top = static_cast<int>(std::lround(m_zoom.Top()));
    const std::vector<int> columns = Places(target.Width(), left, zoom, source.Width());
    const std::vector<int> rows = Places(target.Height(), top, zoomDown, source.Height());
    const int bytes = source.Depth() / 8;
    for (int y = 0; y < target.Height(); ++y)
    {
        if (rows[static_cast<std::size_t>(y)] < 0)
            continue;
        const BYTE* const from = Row(source, rows[static_cast<std::size_t>(y)]);
        BYTE* to = target.Bits() + static_cast<std::ptrdiff_t>(y) * target.BytesPerScan();
        for (int x = 0; x < target.Width(); ++x, to += 3)
        {
            const int column = columns[static_cast<std::size_t>(x)];
            if (column < 0)
                continue;
            const BYTE* const pixel = from + static_cast<std::ptrdiff_t>(column) * bytes;
            if (bytes == 4)
                PutOver(to, pixel, Ground(x - left, y - top));
            else
                Put(to, {pixel[2], pixel[1], pixel[0]});
        }
    }
}

void PicturePane::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    DIB target(client.Width(), -client.Height(), 24, 0, 0, nullptr, nullptr);
    if (target.BitmapInfo() == nullptr)
        return;
    Compose(target);
    target.StretchDIBits(dc, 0, 0, client.Width(), client.Height(), SRCCOPY);
    if (GetFocus() == this)
        dc.DrawFocusRect(&client);
}

void PicturePane::OnLButtonDown(UINT, CPoint point)
{
    SetFocus();
    if (!m_zoom.CanPan())
        return;
    m_isDragging = true;
    m_from = point;
    SetCapture();
    ::SetCursor(::LoadCursor(nullptr, IDC_SIZEALL));
}

void PicturePane::OnLButtonUp(UINT, CPoint)
{
    if (m_isDragging)
        ReleaseCapture();
}

void PicturePane::OnCaptureChanged(CWnd* to)
{
    CWnd::OnCaptureChanged(to);
    m_isDragging = false;
}

void PicturePane::OnLButtonDblClk(UINT, CPoint)
{
    if (m_zoom.IsFitted())
        ShowActualSize();
    else
        Fit();
}

void PicturePane::OnMouseMove(UINT, CPoint point)
{
    if (!m_isDragging)
        return;
    m_zoom.PanBy(point.x - m_from.x, point.y - m_from.y);
    m_from = point;
    Invalidate(FALSE);
}

BOOL PicturePane::OnMouseWheel(UINT, short delta, CPoint point)
{
    ScreenToClient(&point);
    m_zoom.ZoomBy(std::pow(kStep, static_cast<double>(delta) / WHEEL_DELTA), point.x, point.y);
    Changed();
    return TRUE;
}

BOOL PicturePane::OnSetCursor(CWnd* window, UINT hit, UINT message)
{
    if (hit != HTCLIENT || !m_zoom.CanPan())
        return CWnd::OnSetCursor(window, hit, message);
    ::SetCursor(::LoadCursor(nullptr, IDC_SIZEALL));
    return TRUE;
}

void PicturePane::OnSetFocus(CWnd* before)
{
    CWnd::OnSetFocus(before);
    Invalidate(FALSE);
}

void PicturePane::OnKillFocus(CWnd* next)
{
    CWnd::OnKillFocus(next);
    Invalidate(FALSE);
}

void PicturePane::OnDropFiles(HDROP files)
{
    char path[MAX_PATH] = "";
    ::DragQueryFileA(files, 0, path, MAX_PATH);
    ::DragFinish(files);
    m_dropped = path;
    Tell(kDropped);
}
