#include "apps/chart/PictureFile.h"
#include "apps/vorntool/CommandRun.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/ImagePicture.h"
#include "apps/vorntool/core/Columns.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <climits>
#include <memory>

namespace vorn::tool
{

namespace
{

constexpr Option kFrame = {"frame", "N", "the image with this number of a GIF file, from 0"};
constexpr Option kForce = {"force", nullptr, "replace OUT when it exists"};
constexpr Option kQuality = {"quality", "N", "of a JPEG file, 1 to 100 (85 without it)"};
constexpr Option kProgressive = {"progressive", nullptr, "a JPEG file that sharpens while it loads"};
constexpr Option kQuick = {"quick", nullptr, "by the system's halftones instead of by area"};
constexpr Option kGrow = {"grow", nullptr, "grow the picture to hold all of it"};
constexpr Option kBackground = {"background", "RRGGBB", "the colour of what comes in from outside (black without it)"};

int TakeNumber(const Invocation& call, const Option& option, int otherwise, int least, int most)
{
    const auto given = ParseWhole(call.ValueOf(option.name, std::to_string(otherwise)));
    if (!given || *given < least || *given > most)
    {
        throw ToolWrongUse(std::string("--") + option.name + " takes a whole number from " + std::to_string(least) +
                           " to " + std::to_string(most));
    }
    return static_cast<int>(*given);
}

void Read(const Invocation& call, ImagePicture& picture)
{
    ReadPicture(call.values[0], TakeNumber(call, kFrame, 0, 0, INT_MAX), picture);
}

void ReadPixels(const Invocation& call, ImagePicture& picture)
{
    Read(call, picture);
    Decompress(call.values[0], picture);
}

ImageWriting TakeWriting(const Invocation& call, const std::string& name)
{
    const auto kind = ImageKindOf(name);
    if (!kind)
    {
        throw ToolWrongUse(Quoted(name) + " does not end in .bmp, .png, .jpg or .jpeg");
    }
    if (*kind != ImageKind::Jpeg && (call.Has(kQuality.name) || call.Has(kProgressive.name)))
    {
        throw ToolWrongUse("--quality and --progressive are for JPEG files");
    }
    return {*kind, call.Has(kForce.name), TakeNumber(call, kQuality, 85, 1, 100), call.Has(kProgressive.name)};
}

std::string SizeText(const DIB& dib)
{
    return std::to_string(dib.Width()) + " x " + std::to_string(dib.Height()) + " pixels";
}

bool IsTopDown(const DIB& dib)
{
    return dib.BitmapInfo()->bmiHeader.biHeight < 0;
}

int TableColors(const DIB& dib)
{
    const BITMAPINFOHEADER& header = dib.BitmapInfo()->bmiHeader;
    if (header.biBitCount > 8)
    {
        return 0;
    }
    return header.biClrUsed != 0 ? static_cast<int>(header.biClrUsed) : 1 << header.biBitCount;
}

std::string RowsText(const DIB& dib)
{
    return std::string(IsTopDown(dib) ? "from the top" : "from the bottom") +
           (chart::IsCompressed(dib) ? ", compressed" : ", " + std::to_string(dib.BytesPerScan()) + " bytes each");
}

std::string InfoText(const std::string& name, const ImagePicture& picture)
{
    const DIB& dib = picture.dib;
    const int colors = TableColors(dib);
    return LinedUp({{"File", name},
                    {"Format", picture.format},
                    {"Images", std::to_string(CountFrames(name, picture))},
                    {"Size", SizeText(dib)},
                    {"Depth", std::to_string(dib.Depth()) + (dib.Depth() == 1 ? " bit" : " bits") + " a pixel"},
                    {"Colours", colors == 0 ? "no table" : std::to_string(colors) + " in the table"},
                    {"Transparent", picture.transparent < 0 ? "" : "colour " + std::to_string(picture.transparent)},
                    {"Rows", RowsText(dib)}});
}

std::string InfoJson(const std::string& name, const ImagePicture& picture)
{
    const DIB& dib = picture.dib;
    JsonWriter json;
    json.BeginObject().Name("file").Text(name).Name("format").Text(picture.format);
    json.Name("images").Whole(CountFrames(name, picture));
    json.Name("width").Whole(dib.Width()).Name("height").Whole(dib.Height()).Name("depth").Whole(dib.Depth());
    json.Name("colours").Whole(TableColors(dib)).Name("transparent");
    picture.transparent < 0 ? json.Null() : json.Whole(picture.transparent);
    json.Name("topDown").Flag(IsTopDown(dib)).Name("bytesPerRow").Whole(dib.BytesPerScan());
    json.Name("compressed").Flag(chart::IsCompressed(dib));
    return json.EndObject().Line();
}

void ShowInfo(const Invocation& call, Output& output)
{
    ImagePicture picture;
    Read(call, picture);
    output.text = call.Has("json") ? InfoJson(call.values[0], picture) : InfoText(call.values[0], picture);
}

/// Writes the result and tells its size.
void Finish(const Invocation& call, const DIB& dib, const std::string& name, const ImageWriting& how, Output& output)
{
    WritePicture(dib, name, how);
    if (!call.Has("json"))
    {
        output.text = name + ": " + SizeText(dib) + "\n";
        return;
    }
    JsonWriter json;
    json.BeginObject().Name("file").Text(name).Name("width").Whole(dib.Width()).Name("height").Whole(dib.Height());
    output.text = json.EndObject().Line();
}

void Convert(const Invocation& call, Output& output)
{
    const ImageWriting how = TakeWriting(call, call.values[1]);
    ImagePicture picture;
    ReadPixels(call, picture);
    Finish(call, picture.dib, call.values[1], how, output);
}

void Resize(const Invocation& call, Output& output)
{
    const std::string& word = call.values[1];
    const ImageWriting how = TakeWriting(call, call.values[2]);
    if (!ParseImageSize(word, {1, 1}) && !ParseImageSize(word, {kMostImageSide, kMostImageSide}))
    {
        throw ToolWrongUse(Quoted(word) + " is no size such as 400x300, 400x, x300 or 50%, with sides up to " +
                           std::to_string(kMostImageSide));
    }
    ImagePicture picture;
    ReadPixels(call, picture);
    const auto size = ParseImageSize(word, {picture.dib.Width(), picture.dib.Height()});
    DIB made;
    if (!size || !(call.Has(kQuick.name) ? made.LQResize(size->width, size->height, &picture.dib)
                                         : made.HQResize(size->width, size->height, &picture.dib)))
    {
        throw ToolFailure(Quoted(call.values[0]) + " cannot be made " + Quoted(word) + ": that is too large");
    }
    Finish(call, made, call.values[2], how, output);
}

double TakeDegrees(const std::string& word)
{
    const auto degrees = ParseNumber(word);
    if (!degrees)
    {
        throw ToolWrongUse(Quoted(word) + " is no number of degrees");
    }
    return *degrees;
}

COLORREF TakeBackground(const Invocation& call)
{
    const auto color = ParseImageColor(call.ValueOf(kBackground.name, "000000"));
    if (!color)
    {
        throw ToolWrongUse("--background takes six hexadecimal digits, RRGGBB");
    }
    return *color;
}

void Rotate(const Invocation& call, Output& output)
{
    const double degrees = TakeDegrees(call.values[1]);
    const COLORREF background = TakeBackground(call);
    const ImageWriting how = TakeWriting(call, call.values[2]);
    ImagePicture picture;
    ReadPixels(call, picture);
    const std::unique_ptr<DIB> made(picture.dib.Rotate(degrees, call.Has(kGrow.name), background));
    if (!made)
    {
        throw ToolFailure(Quoted(call.values[0]) + " cannot be turned: the result is too large");
    }
    Finish(call, *made, call.values[2], how, output);
}

constexpr Option kInfoOptions[] = {kFrame};
constexpr Option kConvertOptions[] = {kFrame, kQuality, kProgressive, kForce};
constexpr Option kResizeOptions[] = {kQuick, kFrame, kQuality, kProgressive, kForce};
constexpr Option kRotateOptions[] = {kGrow, kBackground, kFrame, kQuality, kProgressive, kForce};

constexpr Command kCommands[] = {
    {"image", "info", "FILE", "Show what a picture file holds",
     "Reads BMP, PCX, GIF, PNG and JPEG files, whatever their names end in.", 1, 1, kInfoOptions, RunCommand<ShowInfo>},
    {"image", "convert", "FILE OUT", "Write a picture as another kind of file",
     "OUT is a BMP (of 24 bits), PNG or JPEG file, by its ending: .bmp, .png, .jpg or\n"
     ".jpeg. PNG files keep tables of colours and an alpha channel; the transparent\n"
     "colour of GIF files becomes a plain one.",
     2, 2, kConvertOptions, RunCommand<Convert>},
    {"image", "resize", "FILE SIZE OUT", "Write a picture in another size",
     "SIZE is 400x300, 400x or x300 (the other side follows), or 50%. Shrinking\n"
     "averages what a pixel covers, growing repeats pixels. OUT as for convert.",
     3, 3, kResizeOptions, RunCommand<Resize>},
    {"image", "rotate", "FILE DEGREES OUT", "Write a picture turned clockwise",
     "Quarter turns are exact. The size stays unless --grow is given. OUT as for\n"
     "convert.",
     3, 3, kRotateOptions, RunCommand<Rotate>},
};

} // namespace

const CommandGroup& ImageCommands()
{
    static const CommandGroup group = {"image", "Picture files: facts, other kinds, sizes, turns.", kCommands};
    return group;
}

} // namespace vorn::tool
