#include "frame/core/VersionResource.h"

#include <algorithm>
#include <optional>

// Layout of program files: "PE Format" in the public documentation of Windows (Portable Executable and COFF).

namespace vorn
{
namespace
{
constexpr std::uint32_t kDosSignature = 0x5A4D;     // "MZ"
constexpr std::uint32_t kNewSignature = 0x00004550; // "PE", two zeros
constexpr std::uint32_t kFormat32 = 0x10B;
constexpr std::uint32_t kFormat64 = 0x20B;
constexpr std::size_t kOptionalHeader = 24;
constexpr std::size_t kSectionSize = 40;

constexpr std::uint32_t kVersionType = 16;
constexpr std::uint32_t kVersionName = 1;
constexpr std::uint32_t kIsDirectory = 0x80000000;

/// The file's headers from the new signature on; none for any other kind of file.
Bytes NewHeaders(Bytes file)
{
    if (WordAt(file, 0) != kDosSignature)
    {
        return {};
    }
    const Bytes headers = From(file, DoubleWordAt(file, 0x3C));
    return DoubleWordAt(headers, 0) == kNewSignature ? headers : Bytes();
}

/// Where the resources stand in memory once the program is loaded; nothing without resources.
std::optional<std::uint32_t> ResourceAddress(Bytes headers)
{
    const Bytes optional = From(headers, kOptionalHeader);
    const std::uint32_t format = WordAt(optional, 0);
    if (format != kFormat32 && format != kFormat64)
    {
        return std::nullopt;
    }
    const Bytes directories = From(optional, format == kFormat32 ? 92 : 108);
    constexpr std::uint32_t resources = 2;
    return DoubleWordAt(directories, 0) > resources ? std::optional(DoubleWordAt(directories, 4 + 8 * resources))
                                                    : std::nullopt;
}

/// What the file holds for an address in memory, up to the end of its section.
Bytes AtAddress(Bytes file, Bytes headers, std::uint32_t address)
{
    const Bytes sections = From(headers, kOptionalHeader + WordAt(headers, 20));
    for (std::size_t i = 0; i < WordAt(headers, 6); ++i)
    {
        const Bytes section = From(sections, i * kSectionSize);
        const std::uint32_t start = DoubleWordAt(section, 12);
        const std::uint32_t size = DoubleWordAt(section, 16);
        if (address >= start && address - start < size)
        {
            const Bytes content = From(file, DoubleWordAt(section, 20));
            return From(content.first(std::min<std::size_t>(size, content.size())), address - start);
        }
    }
    return {};
}

/// What a resource directory's entry `id` (the first one for nothing) points at; 0, which is the root itself, when it
/// has none.
std::uint32_t EntryOf(Bytes directory, std::optional<std::uint32_t> id)
{
    const std::size_t named = WordAt(directory, 12);
    const std::size_t all = named + WordAt(directory, 14);
    for (std::size_t i = id ? named : 0; i < all; ++i)
    {
        const Bytes entry = From(directory, 16 + 8 * i);
        if (!id || DoubleWordAt(entry, 0) == *id)
        {
            return DoubleWordAt(entry, 4);
        }
    }
    return 0;
}

/// The directory that an entry points at; none for anything else.
Bytes Directory(Bytes root, std::uint32_t entry)
{
    return (entry & kIsDirectory) != 0 ? From(root, entry & ~kIsDirectory) : Bytes();
}
} // namespace

Bytes VersionResourceOf(Bytes programFile)
{
    const Bytes headers = NewHeaders(programFile);
    const auto address = ResourceAddress(headers);
    if (!address)
    {
        return {};
    }
    const Bytes root = AtAddress(programFile, headers, *address);
    const Bytes names = Directory(root, EntryOf(root, kVersionType));
    const Bytes languages = Directory(root, EntryOf(names, kVersionName));
    const std::uint32_t data = EntryOf(languages, std::nullopt);
    if (data == 0 || (data & kIsDirectory) != 0)
    {
        return {};
    }
    const Bytes place = From(root, data);
    const Bytes resource = AtAddress(programFile, headers, DoubleWordAt(place, 0));
    return resource.first(std::min<std::size_t>(DoubleWordAt(place, 4), resource.size()));
}
} // namespace vorn
