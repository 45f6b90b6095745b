#pragma once

#include "family/VornChart/core/Image.h"
#include "files/core/ImageView.h"
#include "frame/core/Export.h"

#include <cstdio>
#include <functional>
#include <iosfwd>
#include <memory>

class PaletteMapper;

namespace vorn
{
class PackedImage;
}

/// A device-independent bitmap: one block with a 40-byte header, the colour table and the rows, or rows that live in a
/// GDI section. Reads BMP, PCX, GIF, PNG and JPEG files, writes BMP, PNG and JPEG.
///
/// Depths are 1, 4, 8, 16, 24 and 32 bits. In all that speaks of pixels (0, 0) is the top left one, whatever the order
/// of the rows (a negative height in the header: the first row is the top one). Rows are a multiple of 4 bytes long. A
/// pixel's value is its table index up to 8 bits (1 bit: the leftmost pixel in the top bit; 4 bits: in the high half),
/// the word for 16 bits, and a COLORREF for 24 and 32. A colour table of palette indices has no colours here: such
/// pixels count as black wherever colours matter, and GDI draws them in those of the device context's palette. Bitmap
/// files with compressed pixels are kept and drawn as they are, but nothing here looks into them.
///
/// An object without an image, as it is at first and after a failed reading, has the size 0 and answers every operation
/// by its failure result. No function throws; being out of memory is a failure as any other. An object is used by one
/// thread at a time.
class VORNCOMMON_API DIB : public Image
{
public:
    /// No image.
    DIB();
    /// A block of its own; the rows of a section are copied into it.
    DIB(const DIB& other);
    DIB& operator=(const DIB& other);
    ~DIB() override;

    /// Copies a packed bitmap out of global memory (CF_DIB): the handle, which stays the caller's, is no bitmap's. The
    /// rows are right behind header and table. No image for a null handle or memory that does not hold all of it.
    explicit DIB(HBITMAP packedDib);

    /// @param width from 1
    /// @param height negative for the first row at the top; an image of 0 has no rows
    /// @param usage what the table's entries are: 0 (DIB_RGB_COLORS) colours, here black ones; 1 (DIB_PAL_COLORS)
    ///        palette indices, here 0, 1, 2, ...
    /// @param wantSection not 0 for rows in a GDI section, made for `dc`
    /// @param pixels rows in the image's own layout, which are copied; null for zeros
    ///
    /// No image for a width below 1, more than 1 GiB of pixels, a depth that is none, or a section that cannot be made.
    DIB(int width, int height, int depth, int usage, int wantSection, HDC dc, const unsigned char* pixels);

    /// The header, and behind it the table; null without an image. It stays this object's.
    BITMAPINFO* BitmapInfo() const;
    /// The first stored row; null without an image. It stays this object's.
    unsigned char* Bits() const;
    int Width() const;
    /// Rows, whatever the sign in the header.
    int Height() const;
    /// Bits a pixel.
    int Depth() const;
    /// Bytes from row to row.
    int BytesPerScan() const;
    /// The section that has the rows; null when the block has them. It stays this object's.
    HBITMAP DIBSect() const;
    /// 0: the table has colours of 4 bytes; 1: palette indices of 2 bytes.
    int Usage() const;
    /// Says what the table is taken for. Its bytes stay as they are.
    void Usage(int usage);
    /// An image's number in a file of several: kept for the caller.
    void ImageNumber(int number);
    int ImageNumber() const;

    /// 0 outside.
    DWORD GetPixel(int x, int y) const;
    /// Nothing happens outside; an index is cut to the depth.
    void PutPixel(int x, int y, DWORD value);
    /// Black outside, and for an index that the table does not have.
    void GetRGB(int x, int y, BYTE& r, BYTE& g, BYTE& b) const;

    /// Copies what fits of `source`, which may be this image, with its top left pixel at (x, y). Pixels of the same
    /// depth go over as they are, others by their colour: to the nearest entry of a table.
    bool Blt(int x, int y, DIB* source);
    /// Makes `target`, which may be this image, the same picture in 24 bits, with the same order of rows.
    bool To24Bit(DIB* target) const;

    /// Draws the whole image into a rectangle, by the device context's stretch mode. @return the rows drawn, 0 on
    /// failure.
    int StretchDIBits(HDC dc, int x, int y, int width, int height, DWORD rop) const;
    /// Puts `count` stored rows from number `start` on into a bitmap that is selected nowhere: row 0 is the lowest one,
    /// in an image whose first row is at the top the topmost. @return the rows set, 0 on failure.
    int SetDIBits(HDC dc, HBITMAP bitmap, UINT start, UINT count) const;
    /// Becomes the picture of a bitmap that is selected nowhere: in its size, with this image's depth (24 bits where
    /// there is no image), the lowest row first. Null device context: the screen's; null palette: none is selected.
    bool LoadDDB(HBITMAP bitmap, HDC dc, HPALETTE palette);

    /// Becomes `source`, which may be this image, in another size, top-down, with its depth and usage: stretched by the
    /// system (halftone mode), quick where the system is. False for sizes below 1; nothing changes then.
    bool LQResize(int width, int height, DIB* source);
    /// The same by area: shrinking averages what a pixel covers, growing repeats the nearest pixel. 24 bits, or 32 when
    /// the source has so many; top-down.
    bool HQResize(int width, int height, DIB* source);

    /// A new image, turned clockwise by `angle` degrees about its middle; the caller deletes it, null on failure.
    /// `flag` 0: the size stays; else it grows to hold everything. What comes in from outside has the background's
    /// colour (in a table the nearest entry). Quarter turns are exact; others take the nearest pixel up to 8 bits and
    /// mix four above.
    DIB* Rotate(double angle, int flag, COLORREF background) const;
    /// A new DIB of 1 bit a pixel, black and white, with 1 where the colour is this one; the caller deletes it.
    Image* BuildMask(int r, int g, int b) override;
    /// A cursor of the picture, brought to the size by its nearest pixels and transparent where it has the colour; the
    /// caller destroys it. Null on failure. The instance has no meaning.
    HICON BuildCursor(HINSTANCE instance, int width, int height, int hotX, int hotY, int r, int g, int b) const;

    /// Reads a file by its first bytes: "BM" a bitmap, 10 a PCX file, "GIF87a" or "GIF89a" the first image of a GIF
    /// file, then PNG and JPEG. Like all readers it frees the old image first and leaves none when it fails.
    bool ReadUnknown(const char* path);
    /// A Windows bitmap file, with its block as it is in the file.
    bool ReadBMP(const char* path);
    /// A PCX file of 1, 4 or 8 bits, or of four planes of one bit. Rows stand one file line after the other, so
    /// pictures whose lines are not a multiple of 4 bytes, or longer than the picture's width asks for, are sheared.
    bool ReadPCX(const char* path);
    /// The image with this index, from 0, of a GIF file: 8 bits, top-down, with a table of 256 entries. `transparent`
    /// gets the last transparent index before the image, or -1.
    bool ReadGIF(const char* path, int& transparent, int imageIndex);
    /// A PNG file, bottom-up: palette and grey up to 8 bits keep their depth (2 bits become 4), with a table; colours
    /// become 24 bits, and 32 with their alpha channel as it is in the file.
    bool ReadPNG(const char* path);
    /// A JPEG file, bottom-up: 24 bits, or 8 bits with the palette's entries when there is a mapper.
    ///
    /// @param offset where in the file the picture begins
    /// @param scale 1, 2, 4 or 8: the size is divided by it; others count as the next lower one
    /// @param red, green, blue the channels are multiplied by, and clamped, before the palette
    bool ReadJPEG(const char* path, long offset, int scale, PaletteMapper* mapper, double red, double green,
                  double blue);
    /// The same with `offset` from where the file stands. The file stays open.
    bool ReadJPEG(FILE* file, long offset, int scale, PaletteMapper* mapper, double red, double green, double blue);

    /// A Windows bitmap file of an image of 24 bits; of another no file is made.
    bool WriteBMP(const char* path) const;
    /// A PNG file: of a palette up to 8 bits; RGB; RGBA when some pixel's fourth byte of 32 bits is not 0.
    bool WritePNG(const char* path) const;
    /// Into a file or stream that is open for binary writing and stays so, behind the last byte.
    bool WritePNG(FILE* file) const;
    bool WritePNG(std::ostream& stream) const;
    /// Hands the encoded bytes to a function, piece by piece. False when it throws, and for an empty one.
    bool WritePNG(std::function<void(const char* data, unsigned size)> sink) const;
    /// A JPEG file. Quality is 1 to 100 (below 1: 75). `progressive` is not 0 for a picture that sharpens while it
    /// loads. A mapper replaces the colours by those of its palette first.
    bool WriteJPEG(const char* path, int quality, int progressive, PaletteMapper* mapper) const;

private:
    struct FreeBlock
    {
        void operator()(BITMAPINFO* block) const;
    };

    /// The block as it is; nothing without an image.
    std::span<unsigned char> Block() const;
    std::size_t TableEnd() const;
    vorn::ImageView View() const;
    vorn::ImageCanvas Canvas() const;
    vorn::PackedImage Copy() const;
    void Free();
    /// Takes the image in place of this one; false, and no image, for an empty one.
    bool Adopt(vorn::PackedImage image);
    bool MakeSection(HDC dc, const unsigned char* pixels);

    std::unique_ptr<BITMAPINFO, FreeBlock> m_info;
    unsigned char* m_bits = nullptr;
    int m_usage = 0;
    int m_bytesPerScan = 0;
    int m_depth = 0;
    int m_pixelsPerByte = 0;
    int m_imageNumber = 0;
    HBITMAP m_section = nullptr;
    unsigned long m_blockSize = 0; ///< Of header, table and what rows there are behind them.
};
