#include <VornCommon.h>

#include <cstdio>
#include <memory>

int main()
{
    // A picture of 24 bits: red grows to the right, blue downward.
    DIB picture(256, 128, 24, 0, 0, nullptr, nullptr);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.PutPixel(x, y, RGB(x, 0, 2 * y));
    if (!picture.WritePNG("picture.png"))
        return 1;

    // Whatever kind of file it is: its first bytes tell.
    DIB read;
    if (!read.ReadUnknown("picture.png"))
        return 1;
    std::printf("%d x %d in %d bits\n", read.Width(), read.Height(), read.Depth());

    // Half the size, each pixel the mean of four.
    DIB half;
    half.HQResize(128, 64, &read);
    BYTE red = 0;
    BYTE green = 0;
    BYTE blue = 0;
    half.GetRGB(64, 32, red, green, blue);
    std::printf("%d x %d, %d %d %d in the middle\n", half.Width(), half.Height(), red, green, blue);

    // A quarter turn of that, clockwise; the caller owns the result.
    const std::unique_ptr<DIB> turned(half.Rotate(90, 1, RGB(255, 255, 255)));
    turned->GetRGB(0, 0, red, green, blue);
    std::printf("%d x %d, %d %d %d at the top left\n", turned->Width(), turned->Height(), red, green, blue);

    // What cannot be read leaves no picture.
    const bool isRead = read.ReadUnknown("no such file");
    std::printf("%s, width %d\n", isRead ? "read" : "not read", read.Width());
    return 0;
}
