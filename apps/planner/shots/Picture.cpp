#include "apps/planner/shots/Picture.h"

#include <algorithm>
#include <memory>

namespace vorn::planner
{

namespace
{

constexpr COLORREF kGround = RGB(0x60, 0x68, 0x72);
constexpr COLORREF kInk = RGB(0xFF, 0xFF, 0xFF);

// A cell of the contact sheet, pixels.
constexpr int kCellWidth = 260;
constexpr int kCellHeight = 200;
constexpr int kLabel = 18;
constexpr int kGap = 10;
constexpr int kColumns = 9;

constexpr const char* kContactSheet = "contact.png";

/// An image of 24 bits that is drawn on through a device context.
class DrawnImage
{
public:
    DrawnImage(int width, int height)
        : m_screen(GetDC(nullptr)), m_memory(CreateCompatibleDC(m_screen)),
          m_image(std::make_unique<DIB>(width, height, 24, DIB_RGB_COLORS, 1, m_screen, nullptr))
    {
        m_former = m_image->DIBSect() != nullptr ? SelectObject(m_memory, m_image->DIBSect()) : nullptr;
        const RECT all = {0, 0, width, height};
        SetBkColor(m_memory, kGround);
        ExtTextOut(m_memory, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    }
    ~DrawnImage()
    {
        if (m_former != nullptr)
            SelectObject(m_memory, m_former);
        m_image.reset();
        DeleteDC(m_memory);
        ReleaseDC(nullptr, m_screen);
    }
    DrawnImage(const DrawnImage&) = delete;
    DrawnImage& operator=(const DrawnImage&) = delete;

    bool IsThere() const
    {
        return m_former != nullptr;
    }
    HDC DeviceContext() const
    {
        return m_memory;
    }
    DIB& Image()
    {
        GdiFlush();
        return *m_image;
    }

private:
    HDC m_screen;
    HDC m_memory;
    std::unique_ptr<DIB> m_image;
    HGDIOBJ m_former = nullptr;
};

void CopyWindow(HWND window, HDC target, CPoint origin)
{
    CRect place;
    GetWindowRect(window, &place);
    const HDC source = GetWindowDC(window);
    BitBlt(target, place.left - origin.x, place.top - origin.y, place.Width(), place.Height(), source, 0, 0, SRCCOPY);
    ReleaseDC(window, source);
}

std::vector<std::string> PicturesIn(const std::string& folder)
{
    std::vector<std::string> names;
    WIN32_FIND_DATA found{};
    const HANDLE search = FindFirstFile((folder + "\\*.png").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do
    {
        if (lstrcmpi(found.cFileName, kContactSheet) != 0)
            names.emplace_back(found.cFileName);
    } while (FindNextFile(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

/// Into its cell: as large as it may be, never larger than it is.
void PutSmall(DIB& sheet, const std::string& file, int x, int y)
{
    DIB picture;
    if (!picture.ReadPNG(file.c_str()))
        return;
    const double scale = std::min(
        {1.0, static_cast<double>(kCellWidth) / picture.Width(), static_cast<double>(kCellHeight) / picture.Height()});
    DIB small;
    if (small.HQResize(std::max(1, static_cast<int>(picture.Width() * scale)),
                       std::max(1, static_cast<int>(picture.Height() * scale)), &picture))
        sheet.Blt(x, y, &small);
}

} // namespace

bool IsWholeOnScreen(HWND window)
{
    CRect place;
    GetWindowRect(window, &place);
    const CRect screen(CPoint(GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN)),
                       CSize(GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN)));
    CRect seen;
    return seen.IntersectRect(&place, &screen) && seen == place;
}

bool TakePicture(const std::vector<HWND>& windows, DIB& picture)
{
    CRect all(0, 0, 0, 0);
    for (const HWND window : windows)
    {
        CRect place;
        GetWindowRect(window, &place);
        all.UnionRect(&all, &place);
    }
    if (all.IsRectEmpty())
        return false;
    DrawnImage drawn(all.Width(), all.Height());
    if (!drawn.IsThere())
        return false;
    for (const HWND window : windows)
        CopyWindow(window, drawn.DeviceContext(), all.TopLeft());
    picture = drawn.Image();
    return picture.Width() == all.Width();
}

bool WriteContactSheet(const std::string& folder)
{
    const std::vector<std::string> names = PicturesIn(folder);
    if (names.empty())
        return false;
    const int count = static_cast<int>(names.size());
    const int columns = std::min(count, kColumns);
    const int rows = (count + columns - 1) / columns;
    DrawnImage sheet(kGap + columns * (kCellWidth + kGap), kGap + rows * (kCellHeight + kLabel + kGap));
    if (!sheet.IsThere())
        return false;
    SetTextColor(sheet.DeviceContext(), kInk);
    SetBkMode(sheet.DeviceContext(), TRANSPARENT);
    const HGDIOBJ former = SelectObject(sheet.DeviceContext(), GetStockObject(DEFAULT_GUI_FONT));
    for (int i = 0; i < count; ++i)
    {
        const int x = kGap + i % columns * (kCellWidth + kGap);
        const int y = kGap + i / columns * (kCellHeight + kLabel + kGap);
        const std::string& name = names[static_cast<std::size_t>(i)];
        RECT label = {x, y, x + kCellWidth, y + kLabel};
        DrawText(sheet.DeviceContext(), name.c_str(), static_cast<int>(name.size()) - 4, &label,
                 DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
        PutSmall(sheet.Image(), folder + '\\' + name, x, y + kLabel);
    }
    SelectObject(sheet.DeviceContext(), former);
    return sheet.Image().WritePNG((folder + '\\' + kContactSheet).c_str());
}

} // namespace vorn::planner
