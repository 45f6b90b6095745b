#include "frame/MappedFile.h"

#include <windows.h>

#include <limits>
#include <type_traits>

namespace vorn
{
namespace
{
struct HandleCloser
{
    void operator()(HANDLE handle) const
    {
        CloseHandle(handle);
    }
};
using Handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

/// Others may not write meanwhile: the file must not become shorter than what is mapped.
Handle OpenForReading(const std::string& path)
{
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    return Handle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}
} // namespace

void MappedFile::Unmap::operator()(const std::byte* view) const
{
    UnmapViewOfFile(view);
}

MappedFile::MappedFile(const std::string& path)
{
    const Handle file = OpenForReading(path);
    LARGE_INTEGER size{};
    if (!file || !GetFileSizeEx(file.get(), &size) ||
        static_cast<ULONGLONG>(size.QuadPart) > std::numeric_limits<std::size_t>::max())
    {
        return;
    }
    const Handle mapping(CreateFileMappingA(file.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
    void* const view = mapping ? MapViewOfFile(mapping.get(), FILE_MAP_READ, 0, 0, 0) : nullptr;
    if (view)
    {
        m_view.reset(static_cast<const std::byte*>(view));
        m_size = static_cast<std::size_t>(size.QuadPart);
    }
}
} // namespace vorn
