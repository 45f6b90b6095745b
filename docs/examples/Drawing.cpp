#include <VornCommon.h>

#include <cstdio>
#include <memory>

int main()
{
    // A line that is smoothed: ten points for each curve.
    CPoint corners[] = {{0, 0}, {100, 0}, {100, 100}, {200, 100}};
    CPoint* points = nullptr;
    const int count = BezierSmoothLine(corners, 4, &points);
    const std::unique_ptr<CPoint[]> smoothed(points);
    std::printf("%d points, the last at %ld, %ld\n", count, static_cast<long>(smoothed[count - 1].x),
                static_cast<long>(smoothed[count - 1].y));

    // Marks along a leg, at least ten miles apart.
    LatLon leg[] = {LatLon(47.449, -122.309), LatLon(47.62, -117.534)};
    LatLon* marks = nullptr;
    const int markCount = DistributePoints(leg, 2, 10, &marks);
    const std::unique_ptr<LatLon[]> owned(marks);
    std::printf("%d marks, %.2f NM apart\n", markCount, owned[0].Distance(owned[1]));

    // An ident in Morse code, drawn into a picture whose rows stand as text.
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    bitmap.CreateBitmap(40, 1, 1, 1, nullptr);
    CBitmap* const former = dc.SelectObject(&bitmap);
    dc.PatBlt(0, 0, 40, 1, WHITENESS);
    DrawMorse(&dc, RGB(0, 0, 0), 0, 0, 1, 0, "SEA");
    for (int x = 0; x < MorseWidth(1, "SEA"); ++x)
        std::putchar(dc.GetPixel(x, 0) == RGB(0, 0, 0) ? '#' : ' ');
    std::putchar('\n');
    dc.SelectObject(former);

    // Colours as the settings keep them, and the chart's own by day and night.
    std::printf("%s\n", ColorToString(RGB(255, 128, 0)).GetString());
    ColorContext* const colors = ColorContext::Instance();
    std::printf("land %s", ColorToString(colors->GetColor(APPCOLOR_LAND)).GetString());
    colors->SetCurrentState(COLORSTATE_NIGHT);
    std::printf(", by night %s\n", ColorToString(colors->GetColor(APPCOLOR_LAND)).GetString());

    // Pens and brushes are made once for the process; nobody deletes them.
    const HPEN pen = ResMgr::Inst()->GetStdAppPen(APPCOLOR_ROUTE);
    std::printf("the same pen: %s\n", ResMgr::Inst()->GetStdAppPen(APPCOLOR_ROUTE) == pen ? "yes" : "no");
    ResMgr::FreeInst();
    return 0;
}
