#pragma once

/// @file
/// Picture files on the disk.
#include "files/core/PackedImage.h"

#include <cstdio>
#include <functional>

namespace vorn
{
struct CloseFile
{
    void operator()(FILE* file) const
    {
        std::fclose(file);
    }
};

/// A file with an owner.
using OwnFile = std::unique_ptr<FILE, CloseFile>;

/// For binary reading; null for a null path and a file that cannot be opened.
OwnFile OpenToRead(const char* path);

/// The size of a file, which stands at its beginning afterwards; -1 for what has none, or above 2 GiB.
long SizeOf(FILE* file);

/// False when fewer bytes were left.
bool ReadWhole(FILE* file, std::span<unsigned char> bytes);

/// The whole file; empty for one that cannot be read, or is.
ImageBlock ReadImageFile(const char* path);

/// The bitmap of a file, by ReadBmpFileHeader and ImageOfBmpBlock, read into its block directly.
PackedImage ReadBmpFile(const char* path);

/// Makes a file by a function that tells whether all went well. A file that could not be written whole is removed.
bool WriteToFile(const char* path, const std::function<bool(FILE*)>& write);

/// Writes an image of 24 bits, as EncodeBmp does. False, and no file, for any other.
bool WriteBmpFile(const char* path, const BITMAPINFOHEADER& header, const ImageView& view);
} // namespace vorn
