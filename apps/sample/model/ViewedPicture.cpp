#include "apps/sample/model/ViewedPicture.h"

#include "apps/sample/model/SamplePicture.h"
#include "apps/sample/model/SavePicture.h"

#include <algorithm>
#include <cstdio>
#include <memory>

namespace
{

constexpr int kMostImages = 1000;

struct Format
{
    int firstByte;
    const char* name;
};

constexpr Format kFormats[] = {{'B', "BMP"}, {10, "PCX"}, {'G', "GIF"}, {137, "PNG"}, {255, "JPEG"}};

struct FileStart
{
    int firstByte = -1;
    std::uint64_t size = 0;
};

FileStart StartOf(const std::string& path)
{
    FileStart start;
    CFile file;
    if (!file.Open(path.c_str(), CFile::modeRead | CFile::shareDenyNone))
        return start;
    unsigned char byte = 0;
    if (file.Read(&byte, 1) == 1)
        start.firstByte = byte;
    start.size = file.GetLength();
    return start;
}

const char* FormatName(int firstByte)
{
    const auto* const found = std::ranges::find(kFormats, firstByte, &Format::firstByte);
    return found == std::end(kFormats) ? "" : found->name;
}

/// How many images a GIF file has.
int CountImages(const std::string& path)
{
    DIB image;
    int transparent = -1;
    int count = 0;
    while (count < kMostImages && image.ReadGIF(path.c_str(), transparent, count))
        ++count;
    return count;
}

bool HasAlpha(const DIB& image)
{
    if (image.Depth() != 32 || image.BitmapInfo()->bmiHeader.biCompression != BI_RGB)
        return false;
    const int bytes = image.BytesPerScan() * image.Height();
    for (int i = 3; i < bytes; i += 4)
    {
        if (image.Bits()[i] != 0)
            return true;
    }
    return false;
}

/// 32 bits, with nothing where a pixel has the index.
DIB WithoutIndex(const DIB& image, int index)
{
    DIB made(image.Width(), -image.Height(), 32, 0, 0, nullptr, nullptr);
    unsigned char* to = made.Bits();
    for (int y = 0; to != nullptr && y < image.Height(); ++y)
    {
        for (int x = 0; x < image.Width(); ++x, to += 4)
        {
            image.GetRGB(x, y, to[2], to[1], to[0]);
            to[3] = image.GetPixel(x, y) == static_cast<DWORD>(index) ? 0 : 255;
        }
    }
    return made;
}

/// What GDI makes of it: for pixels that only GDI can read.
DIB Drawn(const DIB& image)
{
    DIB made(image.Width(), -image.Height(), 24, 0, 1, nullptr, nullptr);
    CDC memory;
    if (made.DIBSect() == nullptr || !memory.CreateCompatibleDC(nullptr))
        return made;
    const HGDIOBJ before = ::SelectObject(memory, made.DIBSect());
    image.StretchDIBits(memory, 0, 0, image.Width(), image.Height(), SRCCOPY);
    ::SelectObject(memory, before);
    return made;
}

std::string Number(std::uint64_t value)
{
    std::string digits = std::to_string(value);
    for (int place = static_cast<int>(digits.size()) - 3; place > 0; place -= 3)
        digits.insert(static_cast<std::size_t>(place), ",");
    return digits;
}

} // namespace

std::string ViewedPicture::Open(const std::string& path)
{
    const FileStart start = StartOf(path);
    DIB image;
    if (!image.ReadUnknown(path.c_str()))
        return start.firstByte < 0 ? "There is no readable file " + path + "."
                                   : "This is no picture that can be read: " + path + ".";
    m_path = path;
    m_format = FormatName(start.firstByte);
    m_fileSize = start.size;
    m_changes.clear();
    m_image = 0;
    m_transparent = -1;
    m_images = m_format == "GIF" ? CountImages(path) : 1;
    if (m_format == "GIF")
        image.ReadGIF(path.c_str(), m_transparent, 0);
    m_picture = image;
    MakeShown();
    return {};
}

void ViewedPicture::TakeSample()
{
    m_path.clear();
    m_format = "drawn here";
    m_fileSize = 0;
    m_changes.clear();
    m_image = 0;
    m_images = 1;
    m_transparent = -1;
    m_picture = SamplePicture();
    MakeShown();
}

bool ViewedPicture::ShowImage(int number)
{
    DIB image;
    int transparent = -1;
    if (number < 0 || number >= m_images || !image.ReadGIF(m_path.c_str(), transparent, number))
        return false;
    m_picture = image;
    m_picture.ImageNumber(number);
    m_transparent = transparent;
    m_image = number;
    m_changes.clear();
    MakeShown();
    return true;
}

int ViewedPicture::ImageNumber() const
{
    return m_image;
}

int ViewedPicture::ImageCount() const
{
    return m_images;
}

bool ViewedPicture::Rotate(double degrees)
{
    const std::unique_ptr<DIB> turned(m_picture.Rotate(degrees, 1, RGB(255, 255, 255)));
    if (turned == nullptr)
        return false;
    m_picture = *turned;
    m_changes = "turned";
    MakeShown();
    return true;
}

bool ViewedPicture::Resize(int width, int height, bool byArea)
{
    const bool done =
        byArea ? m_picture.HQResize(width, height, &m_picture) : m_picture.LQResize(width, height, &m_picture);
    if (!done)
        return false;
    m_transparent = -1; // the new pixels have another table
    m_changes = byArea ? "resized by area" : "resized by the system";
    MakeShown();
    return true;
}

std::string ViewedPicture::Save(const std::string& path) const
{
    return SavePicture(m_picture, path);
}

bool ViewedPicture::IsEmpty() const
{
    return m_picture.BitmapInfo() == nullptr;
}

const std::string& ViewedPicture::Path() const
{
    return m_path;
}

std::string ViewedPicture::Name() const
{
    return m_path.empty() ? "The sample's own picture" : m_path.substr(m_path.find_last_of("\\/") + 1);
}

int ViewedPicture::Width() const
{
    return m_picture.Width();
}

int ViewedPicture::Height() const
{
    return m_picture.Height();
}

const DIB& ViewedPicture::Shown() const
{
    return m_shown;
}

int ViewedPicture::TransparentIndex() const
{
    return m_picture.Depth() <= 8 ? m_transparent : -1;
}

void ViewedPicture::MakeShown()
{
    if (HasAlpha(m_picture))
        m_shown = m_picture;
    else if (TransparentIndex() >= 0)
        m_shown = WithoutIndex(m_picture, m_transparent);
    else if (!m_picture.To24Bit(&m_shown))
        m_shown = Drawn(m_picture);
}

std::string ViewedPicture::DepthWords() const
{
    const int depth = m_picture.Depth();
    const std::string bits = std::to_string(depth) + (depth == 1 ? " bit" : " bits");
    if (depth > 8)
        return bits;
    return bits + ", " + std::to_string(1 << depth) + " colours";
}

std::string ViewedPicture::TransparencyWords() const
{
    if (HasAlpha(m_picture))
        return "alpha channel";
    return TransparentIndex() >= 0 ? "index " + std::to_string(m_transparent) : "none";
}

vorn::ReportTable ViewedPicture::Facts() const
{
    vorn::ReportTable facts;
    facts.title = Name();
    facts.columns = {{"Fact"}, {"Value"}};
    facts.AddRow({"Format", m_format}, vorn::Tone::Accent);
    facts.AddRow({"Size", Number(static_cast<std::uint64_t>(Width())) + " \xD7 " +
                              Number(static_cast<std::uint64_t>(Height())) + " pixels"});
    facts.AddRow({"Depth", DepthWords()});
    facts.AddRow({"Transparent", TransparencyWords()},
                 TransparencyWords() == "none" ? vorn::Tone::Muted : vorn::Tone::Plain);
    facts.AddRow({"Image", std::to_string(m_image + 1) + " of " + std::to_string(m_images)});
    const bool isTopDown = !IsEmpty() && m_picture.BitmapInfo()->bmiHeader.biHeight < 0;
    facts.AddRow({"Rows", isTopDown ? "top-down" : "bottom-up"});
    facts.AddRow({"Bytes a row", Number(static_cast<std::uint64_t>(m_picture.BytesPerScan()))});
    facts.AddRow({"File", m_fileSize == 0 ? "none" : Number(m_fileSize) + " bytes"},
                 m_fileSize == 0 ? vorn::Tone::Muted : vorn::Tone::Plain);
    facts.AddRow({"Changes", m_changes.empty() ? "none" : m_changes},
                 m_changes.empty() ? vorn::Tone::Muted : vorn::Tone::Good);
    return facts;
}
