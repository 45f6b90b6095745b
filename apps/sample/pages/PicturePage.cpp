#include "apps/sample/pages/PicturePage.h"

#include "apps/sample/ResizePictureDialog.h"
#include "apps/sample/model/Messages.h"
#include "apps/sample/resource.h"
#include "apps/sample/ui/TableCard.h"

#include <algorithm>

namespace
{

constexpr const char* kReadable =
    "Pictures (*.bmp;*.pcx;*.gif;*.png;*.jpg;*.jpeg)|*.bmp;*.pcx;*.gif;*.png;*.jpg;*.jpeg|"
    "All files (*.*)|*.*||";
constexpr const char* kWritable = "PNG (*.png)|*.png|JPEG (*.jpg)|*.jpg|Bitmap (*.bmp)|*.bmp||";

std::string SizeWords(const ViewedPicture& picture)
{
    return std::to_string(picture.Width()) + " x " + std::to_string(picture.Height()) + " pixels";
}

/// What a picture of 32 bits is on paper, in 24 bits, its rows from the top. Empty without memory.
DIB OnWhite(const DIB& picture)
{
    DIB made(picture.Width(), -picture.Height(), 24, DIB_RGB_COLORS, 0, nullptr, nullptr);
    const bool isTopDown = picture.BitmapInfo()->bmiHeader.biHeight < 0;
    for (int y = 0; made.Bits() != nullptr && y < picture.Height(); ++y)
    {
        const int stored = isTopDown ? y : picture.Height() - 1 - y;
        const BYTE* from = picture.Bits() + static_cast<std::ptrdiff_t>(stored) * picture.BytesPerScan();
        BYTE* to = made.Bits() + static_cast<std::ptrdiff_t>(y) * made.BytesPerScan();
        for (int x = 0; x < picture.Width(); ++x, from += 4, to += 3)
            std::transform(from, from + 3, to,
                           [alpha = from[3]](BYTE color)
                           {
                               return static_cast<BYTE>((color * alpha + 255 * (255 - alpha) + 127) / 255);
                           });
    }
    return made;
}

} // namespace

const char* PicturePage::Name() const
{
    return "Pictures";
}

void PicturePage::Refresh()
{
}

bool PicturePage::FillsWindow() const
{
    return true;
}

std::string PicturePage::TakeOptions(const StartOptions& options)
{
    if (options.picture.empty())
        return {};
    const std::string problem = m_picture.Open(options.picture);
    if (!problem.empty())
        Say(problem, Notice::News::Bad);
    return problem;
}

std::string PicturePage::Summary() const
{
    return vorn::ToText(m_picture.Facts());
}

std::string PicturePage::Note() const
{
    const std::string& path = m_picture.Path();
    return path.empty()
               ? "Hills in the colours of terrain bands, with an alpha channel; open or drop a file for another"
               : path;
}

vorn::ReportTable PicturePage::Facts() const
{
    vorn::ReportTable facts = m_picture.Facts();
    facts.title = "Facts";
    CString shown;
    shown.Format("%.4g %%", m_pane.Zoom().Zoom() * 100);
    if (m_pane.Zoom().IsFitted())
        shown += ", fitted";
    facts.AddRow({"Shown at", shown.GetString()}, vorn::Tone::Accent);
    return facts;
}

bool PicturePage::OwnsCommand(UINT command) const
{
    return command >= ID_PICTURE_FIRST && command <= ID_PICTURE_LAST;
}

bool PicturePage::CanRun(UINT command) const
{
    if (m_view == nullptr)
        return false;
    switch (command)
    {
    case ID_PICTURE_OPEN:
        return true;
    case ID_PICTURE_PREVIOUS:
        return m_picture.ImageNumber() > 0;
    case ID_PICTURE_NEXT:
        return m_picture.ImageNumber() + 1 < m_picture.ImageCount();
    default:
        return !m_picture.IsEmpty();
    }
}

void PicturePage::Run(UINT command)
{
    switch (command)
    {
    case ID_PICTURE_OPEN:
        return AskForPicture();
    case ID_PICTURE_SAVE:
        return AskWhereToSave();
    case ID_PICTURE_PREVIOUS:
        return ShowImage(m_picture.ImageNumber() - 1);
    case ID_PICTURE_NEXT:
        return ShowImage(m_picture.ImageNumber() + 1);
    case ID_PICTURE_FIT:
        return m_pane.Fit();
    case ID_PICTURE_ACTUAL:
        return m_pane.ShowActualSize();
    case ID_PICTURE_IN:
        return m_pane.ZoomIn();
    case ID_PICTURE_OUT:
        return m_pane.ZoomOut();
    case ID_PICTURE_LEFT:
        return Turn(-90);
    case ID_PICTURE_RIGHT:
        return Turn(90);
    case ID_PICTURE_RESIZE:
        return AskForSize();
    default:
        break;
    }
}

void PicturePage::Open(const std::string& path)
{
    const std::string problem = m_picture.Open(path);
    if (!problem.empty())
    {
        Say(problem, Notice::News::Bad);
        return LogNote(LOG_WARNING, problem);
    }
    ShowPicture();
    LogNote(LOG_INFO, "Opened the picture " + path);
    Say("Opened " + m_picture.Name() + ": " + SizeWords(m_picture) + ".", Notice::News::Good);
}

void PicturePage::AskForPicture()
{
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kReadable, m_view);
    if (dialog.DoModal() == IDOK)
        Open(dialog.GetPathName().GetString());
}

void PicturePage::AskWhereToSave()
{
    CFileDialog dialog(FALSE, "png", "picture.png", OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY,
                       kWritable, m_view);
    if (dialog.DoModal() != IDOK)
        return;
    const std::string path = dialog.GetPathName().GetString();
    const std::string problem = m_picture.Save(path);
    Say(problem.empty() ? "Saved as " + path + "." : problem, problem.empty() ? Notice::News::Good : Notice::News::Bad);
}

void PicturePage::AskForSize()
{
    ResizePictureDialog dialog(m_view, m_picture.Width(), m_picture.Height());
    if (dialog.DoModal() != IDOK)
        return;
    if (!m_picture.Resize(dialog.Width(), dialog.Height(), dialog.IsByArea()))
        return Say("The picture could not be resized.", Notice::News::Bad);
    ShowPicture();
    Say("Resized to " + SizeWords(m_picture) + ".", Notice::News::Good);
}

void PicturePage::ShowImage(int number)
{
    if (!m_picture.ShowImage(number))
        return Say("This image cannot be read.", Notice::News::Bad);
    ShowPicture();
    Say("Image " + std::to_string(number + 1) + " of " + std::to_string(m_picture.ImageCount()) + ".",
        Notice::News::Plain);
}

void PicturePage::Turn(double degrees)
{
    if (!m_picture.Rotate(degrees))
        return Say("The picture could not be turned.", Notice::News::Bad);
    ShowPicture();
    Say("Turned: " + SizeWords(m_picture) + ".", Notice::News::Good);
}

void PicturePage::ShowPicture()
{
    if (m_view == nullptr)
        return;
    m_pane.Show(&m_picture.Shown());
    ShowState();
}

// A button that goes dim hands the keys on.
void PicturePage::ShowState()
{
    if (m_view == nullptr)
        return;
    for (CButton& button : m_buttons)
    {
        const bool can = CanRun(static_cast<UINT>(button.GetDlgCtrlID()));
        if (!can && CWnd::GetFocus() == &button)
            m_pane.SetFocus();
        button.EnableWindow(can);
    }
    m_view->Invalidate(FALSE);
}

void PicturePage::Say(const std::string& words, Notice::News news)
{
    m_words = words;
    m_news = news;
    if (m_view != nullptr)
        m_notice.Say(words, news);
}

void PicturePage::Print(CDC& dc, const CRect& area, const Theme& theme) const
{
    const vorn::ReportTable facts = m_picture.Facts();
    const TableCard card(facts, theme);
    CRect top(area);
    top.bottom = top.top + card.Height();
    card.Draw(dc, top);
    const DIB& shown = m_picture.Shown();
    const int room = area.bottom - top.bottom - theme.Px(20);
    if (shown.BitmapInfo() == nullptr || room < 1)
        return;
    const double zoom =
        std::min(static_cast<double>(area.Width()) / shown.Width(), static_cast<double>(room) / shown.Height());
    const int width = std::max(1, static_cast<int>(shown.Width() * zoom));
    const int height = std::max(1, static_cast<int>(shown.Height() * zoom));
    const DIB paper = shown.Depth() == 32 ? OnWhite(shown) : DIB();
    const DIB& printed = paper.BitmapInfo() != nullptr ? paper : shown;
    printed.StretchDIBits(dc, area.left, top.bottom + theme.Px(20), width, height, SRCCOPY);
}
