#include "apps/vorntool/ImagePicture.h"

#include "apps/chart/PictureFile.h"
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

std::string WhyUnread(const std::string& name, int frame, const std::string& format)
{
    if (frame != 0)
    {
        return Quoted(name) + " has no frame " + std::to_string(frame) + " that can be read";
    }
    return Quoted(name) + (format == "unknown" ? " is no BMP, PCX, GIF, PNG or JPEG file"
                                               : " is a " + format +
                                                     " file that is damaged, too large or of a kind that "
                                                     "is not read");
}

[[noreturn]] void FailToWrite(const std::string& name)
{
    const DWORD code = GetLastError();
    throw ToolFailure(Quoted(name) + " cannot be written: " + SystemError(code));
}

/// An empty file beside another one, which goes with whatever is written there unless it has been moved.
class Unfinished
{
public:
    /// @param name of the file, for the reason why none can be made beside it
    Unfinished(const std::filesystem::path& path, const std::string& name) : m_path(UnusedBeside(path))
    {
        const HANDLE file = CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE)
        {
            FailToWrite(name);
        }
        CloseHandle(file);
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

bool WriteAs(const DIB& dib, const char* path, const ImageWriting& how)
{
    switch (how.kind)
    {
    case ImageKind::Bmp:
        return chart::WriteBitmap(dib, path);
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
        throw ToolFailure(WhyUnread(name, frame, picture.format));
    }
}

int CountFrames(const std::string& name, const ImagePicture& picture)
{
    return picture.format == "GIF" ? chart::CountImages(NameForLibrary(name)) : 1;
}

void Decompress(const std::string& name, ImagePicture& picture)
{
    if (!chart::IsCompressed(picture.dib))
    {
        return;
    }
    picture.dib = chart::DrawnBySystem(picture.dib);
    if (picture.dib.BitmapInfo() == nullptr)
    {
        throw ToolFailure(Quoted(name) + " has compressed pixels that the system cannot draw");
    }
}

void WritePicture(const DIB& dib, const std::string& name, const ImageWriting& how)
{
    NameForLibrary(name);
    const std::filesystem::path path = PathFromUtf8(name);
    const DWORD there = GetFileAttributesW(path.c_str());
    if (there != INVALID_FILE_ATTRIBUTES && (there & FILE_ATTRIBUTE_DIRECTORY) != 0)
    {
        throw ToolFailure(Quoted(name) + " is a folder");
    }
    if (there != INVALID_FILE_ATTRIBUTES && !how.mayReplace)
    {
        throw ToolFailure(Quoted(name) + " exists; --force replaces it");
    }
    const Unfinished unfinished(path, name);
    const CString written = NameForLibrary(Utf8FromWide(unfinished.Path().native()));
    if (!WriteAs(dib, written, how))
    {
        throw ToolFailure(Quoted(name) + " could not be written");
    }
    if (!MoveOver(unfinished.Path(), path))
    {
        FailToWrite(name);
    }
}

} // namespace vorn::tool
