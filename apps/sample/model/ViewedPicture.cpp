#include "apps/sample/model/ViewedPicture.h"

#include "apps/chart/PictureFile.h"
#include "apps/sample/model/SamplePicture.h"
#include "apps/sample/model/SavePicture.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace
{

struct Format
{
    int firstByte;
    const char* name;
};

constexpr Format kFormats[] = {{'B', "BMP"}, {10, "PCX"}, {'G', "GIF"}, {137, "PNG"}, {255, "JPEG"}};

constexpr int kGifByte = 'G';

struct FileStart
{
    int firstByte = -1; // of an empty file
    std::uint64_t size = 0;
};

/// Nothing for a file that there is not, or that may not be read.
std::optional<FileStart> StartOf(const std::string& path)
{
    CFile file;
    if (!file.Open(path.c_str(), CFile::modeRead | CFile::shareDenyNone))
        return std::nullopt;
    FileStart start;
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

bool HasAlpha(const DIB& image)
{
    if (image.Depth() != 32 || !vorn::chart::HasPlainChannels(image))
        return false;
    const int bytes = image.BytesPerScan() * image.Height();
    for (int i = 3; i < bytes; i += 4)
    {
        if (image.Bits()[i] != 0)
            return true;
    }
    return false;
}

std::string Unreadable(const std::string& path)
{
    return "This is no picture that can be read: " + path + ".";
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
    const std::optional<FileStart> start = StartOf(path);
    if (!start)
        return "There is no readable file " + path + ".";
    const bool isGif = start->firstByte == kGifByte;
    auto image = std::make_unique<DIB>();
    int transparent = -1;
    if (!(isGif ? image->ReadGIF(path.c_str(), transparent, 0) : image->ReadUnknown(path.c_str())))
        return Unreadable(path);
    const bool isCompressed = vorn::chart::IsCompressed(*image);
    if (isCompressed)
        image = std::make_unique<DIB>(vorn::chart::DrawnBySystem(*image));
    if (image->BitmapInfo() == nullptr)
        return Unreadable(path);
    if (!Take(std::move(image), transparent))
        return "There is no memory to show the picture " + path + ".";
    m_path = path;
    m_format = std::string(FormatName(start->firstByte)) + (isCompressed ? ", compressed" : "");
    m_fileSize = start->size;
    m_changes.clear();
    m_image = 0;
    m_images = isGif ? vorn::chart::CountImages(path.c_str()) : 1;
    return {};
}

bool ViewedPicture::Take(std::unique_ptr<DIB> picture, int transparent)
{
    const bool hasAlpha = HasAlpha(*picture);
    const int index = picture->Depth() <= 8 ? transparent : -1;
    auto shown = std::make_unique<DIB>();
    if (hasAlpha)
        *shown = *picture;
    else if (index >= 0)
        *shown = WithoutIndex(*picture, index);
    else
        picture->To24Bit(shown.get());
    if (shown->BitmapInfo() == nullptr)
        return false;
    m_shown = std::move(shown);
    m_picture = std::move(picture);
    m_hasAlpha = hasAlpha;
    m_transparent = index;
    return true;
}

void ViewedPicture::TakeSample()
{
    m_path.clear();
    m_format = "drawn here";
    m_fileSize = 0;
    m_changes.clear();
    m_image = 0;
    m_images = 1;
    Take(std::make_unique<DIB>(SamplePicture()), -1);
}

bool ViewedPicture::ShowImage(int number)
{
    auto image = std::make_unique<DIB>();
    int transparent = -1;
    if (number < 0 || number >= m_images || !image->ReadGIF(m_path.c_str(), transparent, number))
        return false;
    image->ImageNumber(number);
    if (!Take(std::move(image), transparent))
        return false;
    m_image = number;
    m_changes.clear();
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
    std::unique_ptr<DIB> turned(m_picture->Rotate(degrees, 1, RGB(255, 255, 255)));
    if (turned == nullptr || !Take(std::move(turned), m_transparent))
        return false;
    m_changes = "turned";
    return true;
}

bool ViewedPicture::Resize(int width, int height, bool byArea)
{
    auto made = std::make_unique<DIB>();
    const bool done =
        byArea ? made->HQResize(width, height, m_picture.get()) : made->LQResize(width, height, m_picture.get());
    if (!done || !Take(std::move(made), -1)) // the new pixels have another table
        return false;
    m_changes = byArea ? "resized by area" : "resized by the system";
    return true;
}

std::string ViewedPicture::Save(const std::string& path) const
{
    return SavePicture(*m_picture, path);
}

bool ViewedPicture::IsEmpty() const
{
    return m_picture->BitmapInfo() == nullptr;
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
    return m_picture->Width();
}

int ViewedPicture::Height() const
{
    return m_picture->Height();
}

const DIB& ViewedPicture::Shown() const
{
    return *m_shown;
}

std::string ViewedPicture::DepthWords() const
{
    const int depth = m_picture->Depth();
    const std::string bits = std::to_string(depth) + (depth == 1 ? " bit" : " bits");
    if (depth > 8)
        return bits;
    return bits + ", " + std::to_string(1 << depth) + " colours";
}

std::string ViewedPicture::TransparencyWords() const
{
    if (m_hasAlpha)
        return "alpha channel";
    return m_transparent >= 0 ? "index " + std::to_string(m_transparent) : "none";
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
    const bool isTopDown = !IsEmpty() && m_picture->BitmapInfo()->bmiHeader.biHeight < 0;
    facts.AddRow({"Rows", isTopDown ? "top-down" : "bottom-up"});
    facts.AddRow({"Bytes a row", Number(static_cast<std::uint64_t>(m_picture->BytesPerScan()))});
    facts.AddRow({"File", m_fileSize == 0 ? "none" : Number(m_fileSize) + " bytes"},
                 m_fileSize == 0 ? vorn::Tone::Muted : vorn::Tone::Plain);
    facts.AddRow({"Changes", m_changes.empty() ? "none" : m_changes},
                 m_changes.empty() ? vorn::Tone::Muted : vorn::Tone::Good);
    return facts;
}
