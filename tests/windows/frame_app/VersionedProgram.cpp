#include "tests/windows/frame_app/VersionedProgram.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <shlobj.h>

#include <cstdio>
#include <cstring>
#include <string_view>

namespace vorn::test
{
namespace
{
constexpr DWORD kFileAlignment = 0x200;
constexpr DWORD kSectionAddress = 0x1000;
constexpr DWORD kDirectorySize = sizeof(IMAGE_RESOURCE_DIRECTORY) + sizeof(IMAGE_RESOURCE_DIRECTORY_ENTRY);
constexpr DWORD kDataEntry = 3 * kDirectorySize; // in the section: behind type, name and language

template <class Record>
void Append(Bytes& bytes, const Record& record)
{
    const std::size_t end = bytes.size();
    bytes.resize(end + sizeof record);
    std::memcpy(bytes.data() + end, &record, sizeof record);
}

Bytes ResourceBlock(WORD valueLength, const Bytes& value)
{
    Bytes bytes;
    const std::u16string_view key = u"VS_VERSION_INFO";
    Append(bytes, static_cast<WORD>(6 + 2 * (key.size() + 1) + 2 + value.size()));
    Append(bytes, valueLength);
    Append(bytes, WORD{0});
    for (const char16_t c : key)
    {
        Append(bytes, c);
    }
    Append(bytes, DWORD{0}); // terminator and padding
    bytes.insert(bytes.end(), value.begin(), value.end());
    return bytes;
}

void AppendDirectory(Bytes& bytes, DWORD id, DWORD target)
{
    IMAGE_RESOURCE_DIRECTORY directory{};
    directory.NumberOfIdEntries = 1;
    Append(bytes, directory);
    Append(bytes, id);
    Append(bytes, target);
}

/// The tree type, name, language, each with one entry, and the resource behind it.
Bytes ResourceSection(const Bytes& resource)
{
    constexpr DWORD isDirectory = 0x80000000;
    Bytes bytes;
    AppendDirectory(bytes, 16, kDirectorySize | isDirectory); // 16: version resources
    AppendDirectory(bytes, 1, 2 * kDirectorySize | isDirectory);
    AppendDirectory(bytes, 0x409, kDataEntry);
    IMAGE_RESOURCE_DATA_ENTRY data{};
    data.OffsetToData = kSectionAddress + kDataEntry + sizeof data;
    data.Size = static_cast<DWORD>(resource.size());
    Append(bytes, data);
    bytes.insert(bytes.end(), resource.begin(), resource.end());
    return bytes;
}

IMAGE_NT_HEADERS32 Headers(DWORD sectionSize)
{
    IMAGE_NT_HEADERS32 headers{};
    headers.Signature = IMAGE_NT_SIGNATURE;
    headers.FileHeader.Machine = IMAGE_FILE_MACHINE_I386;
    headers.FileHeader.NumberOfSections = 1;
    headers.FileHeader.SizeOfOptionalHeader = sizeof headers.OptionalHeader;
    headers.FileHeader.Characteristics = IMAGE_FILE_EXECUTABLE_IMAGE | IMAGE_FILE_32BIT_MACHINE;
    IMAGE_OPTIONAL_HEADER32& optional = headers.OptionalHeader;
    optional.Magic = IMAGE_NT_OPTIONAL_HDR32_MAGIC;
    optional.ImageBase = 0x400000;
    optional.SectionAlignment = kSectionAddress;
    optional.FileAlignment = kFileAlignment;
    optional.MajorSubsystemVersion = 4;
    optional.SizeOfImage = 2 * kSectionAddress;
    optional.SizeOfHeaders = kFileAlignment;
    optional.Subsystem = IMAGE_SUBSYSTEM_WINDOWS_GUI;
    optional.NumberOfRvaAndSizes = IMAGE_NUMBEROF_DIRECTORY_ENTRIES;
    if (sectionSize != 0)
    {
        optional.DataDirectory[IMAGE_DIRECTORY_ENTRY_RESOURCE] = {kSectionAddress, sectionSize};
    }
    return headers;
}

Bytes Program(const Bytes& resource)
{
    const Bytes section = resource.empty() ? Bytes() : ResourceSection(resource);
    IMAGE_DOS_HEADER dos{};
    dos.e_magic = IMAGE_DOS_SIGNATURE;
    dos.e_lfanew = sizeof dos;
    IMAGE_SECTION_HEADER header{};
    std::memcpy(header.Name, ".rsrc", 6);
    header.Misc.VirtualSize = kSectionAddress;
    header.VirtualAddress = kSectionAddress;
    header.SizeOfRawData = 2 * kFileAlignment;
    header.PointerToRawData = kFileAlignment;
    header.Characteristics = IMAGE_SCN_MEM_READ | IMAGE_SCN_CNT_INITIALIZED_DATA;
    Bytes bytes;
    Append(bytes, dos);
    Append(bytes, Headers(static_cast<DWORD>(section.size())));
    Append(bytes, header);
    bytes.resize(kFileAlignment);
    bytes.insert(bytes.end(), section.begin(), section.end());
    bytes.resize(3 * kFileAlignment);
    return bytes;
}
} // namespace

Bytes VersionResource(std::uint16_t productMajor, std::uint16_t productMinor)
{
    VS_FIXEDFILEINFO info{};
    info.dwSignature = 0xFEEF04BD;
    info.dwStrucVersion = 0x00010000;
    info.dwFileVersionMS = 0x00010002;
    info.dwFileVersionLS = 0x00030004;
    info.dwProductVersionMS = static_cast<DWORD>(productMajor) << 16 | productMinor;
    info.dwProductVersionLS = 0x00070008;
    Bytes value;
    Append(value, info);
    return ResourceBlock(sizeof info, value);
}

Bytes VersionResourceWithoutFixedPart()
{
    return ResourceBlock(0, {});
}

void WriteProgram(const std::string& path, const Bytes& resource)
{
    SHCreateDirectoryExA(nullptr, path.substr(0, path.find_last_of('\\')).c_str(), nullptr);
    FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr) << path;
    const Bytes bytes = Program(resource);
    EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file), bytes.size());
    std::fclose(file);
}

void ClaimResourceSize(const std::string& path, std::uint32_t size)
{
    FILE* file = std::fopen(path.c_str(), "r+b");
    ASSERT_NE(file, nullptr) << path;
    std::fseek(file, kFileAlignment + kDataEntry + offsetof(IMAGE_RESOURCE_DATA_ENTRY, Size), SEEK_SET);
    EXPECT_EQ(std::fwrite(&size, sizeof size, 1, file), 1U);
    std::fclose(file);
}
} // namespace vorn::test
