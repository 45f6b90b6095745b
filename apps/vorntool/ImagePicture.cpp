#include "apps/vorntool/ImagePicture.h"

#include "apps/vorntool/DbfOutput.h"
#include "apps/vorntool/SystemErrors.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"

#include <array>
#include <fstream>

namespace vorn::tool
{

namespace
{

CString NameForLibrary(const std::string& name)
{
    const std::optional<CString> path = LibraryFromUtf8(name);
    if (!path || name.empty())
    {
        throw ToolWrongUse(Quoted(name) + " cannot be the name of a picture");
    }
    return *path;
}

std::string FormatOf(const std::string& name)
{
    std::ifstream file(PathFromUtf8(name), std::ios::binary);
    if (!file)
    {
        throw ToolFailure(Quoted(name) + " cannot be opened: " + SystemError(GetLastError()));
    }
    std::array<unsigned char, 8> head{};
    file.read(reinterpret_cast<char*>(head.data()), head.size());
    return std::string(ImageFormatName(std::span(head).first(static_cast<std::size_t>(file.gcount()))));
}

/// A name beside a file, which goes with whatever stands there unless it has been moved.
class Unfinished
{
public:
    explicit Unfinished(const std::filesystem::path& path) : m_path(UnusedBeside(path))
    {
    }
    ~Unfinished()
    {
        DeleteFileW(m_path.c_str());
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

    const std::filesystem::path& Path() const
    {
        return m_path;
    }

private:
    std::filesystem::path m_path;
};

// Bitmap files are written of 24 bits alone.
bool WriteBmp(const DIB& dib, const char* path)
{
    DIB colors;
    return dib.Depth() == 24 ? dib.WriteBMP(path) : dib.To24Bit(&colors) && colors.WriteBMP(path);
}

bool WriteAs(const DIB& dib, const char* path, const ImageWriting& how)
{
    switch (how.kind)
    {
    case ImageKind::Bmp:
        return WriteBmp(dib, path);
    case ImageKind::Png:
        return dib.WritePNG(path);
    default:
        return dib.WriteJPEG(path, how.quality, how.isProgressive, nullptr);
    }
}

} // namespace

void ReadPicture(const std::string& name, int frame, ImagePicture& picture)
{
    const CString path = NameForLibrary(name);
    picture.format = FormatOf(name);
    if (frame != 0 && picture.format != "GIF")
    {
        throw ToolFailure(Quoted(name) + " is no GIF file and has no frame " + std::to_string(frame));
    }
    const bool isRead =
        picture.format == "GIF" ? picture.dib.ReadGIF(path, picture.transparent, frame) : picture.dib.ReadUnknown(path);
    if (!isRead)
    {
        throw ToolFailure(Quoted(name) + (frame != 0 ? " has no frame " + std::to_string(frame) + " that can be read"
                                                     : " is no picture that can be read"));
    }
}

void WritePicture(const DIB& dib, const std::string& name, const ImageWriting& how)
{
    NameForLibrary(name);
    const std::filesystem::path path = PathFromUtf8(name);
    if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES && !how.mayReplace)
    {
        throw ToolFailure(Quoted(name) + " exists; --force replaces it");
    }
    const Unfinished unfinished(path);
    const CString written = NameForLibrary(Utf8FromWide(unfinished.Path().native()));
    if (!WriteAs(dib, written, how))
    {
        throw ToolFailure(Quoted(name) + " could not be written");
    }
    if (!MoveOver(unfinished.Path(), path))
    {
        throw ToolFailure(Quoted(name) + " cannot be replaced");
    }
}

} // namespace vorn::tool
