#include "apps/sample/core/PictureZoom.h"

#include <gtest/gtest.h>

namespace
{

using vorn::Extents;
using vorn::PictureZoom;

PictureZoom Shown(Extents picture, Extents window)
{
    PictureZoom zoom;
    zoom.SetWindow(window);
    zoom.SetPicture(picture);
    return zoom;
}

TEST(PictureZoom, FitsTheWholePictureInTheMiddle)
{
    const PictureZoom wide = Shown({400, 100}, {200, 200});
    EXPECT_EQ(wide.Zoom(), 0.5);
    EXPECT_EQ(wide.Scaled(), (Extents{200, 50}));
    EXPECT_EQ(wide.Left(), 0);
    EXPECT_EQ(wide.Top(), 75);
    EXPECT_TRUE(wide.IsFitted());
    EXPECT_FALSE(wide.CanPan());
    EXPECT_EQ(Shown({10, 20}, {200, 200}).Zoom(), 10);
    EXPECT_EQ(Shown({1, 1}, {2000, 2000}).Zoom(), PictureZoom::kMost);
}

TEST(PictureZoom, StaysFittedWhenTheWindowChanges)
{
    PictureZoom zoom = Shown({100, 100}, {200, 200});
    zoom.SetWindow({50, 80});
    EXPECT_EQ(zoom.Zoom(), 0.5);
    EXPECT_EQ(zoom.Top(), 15);
}

TEST(PictureZoom, ActualSizeKeepsTheMiddle)
{
    PictureZoom zoom = Shown({400, 400}, {200, 200});
    zoom.ShowActualSize();
    EXPECT_EQ(zoom.Zoom(), 1);
    EXPECT_EQ(zoom.Left(), -100);
    EXPECT_EQ(zoom.Top(), -100);
    EXPECT_TRUE(zoom.CanPan());
    zoom.SetWindow({300, 200});
    EXPECT_EQ(zoom.Left(), -50);
    EXPECT_EQ(zoom.Top(), -100);
}

TEST(PictureZoom, ZoomsAboutAPoint)
{
    PictureZoom zoom = Shown({400, 400}, {200, 200});
    zoom.ShowActualSize();
    zoom.ZoomBy(2, 50, 150); // pixel (150, 250) of the picture is there
    EXPECT_EQ(zoom.Zoom(), 2);
    EXPECT_EQ((50 - zoom.Left()) / 2, 150);
    EXPECT_EQ((150 - zoom.Top()) / 2, 250);
    zoom.ZoomBy(1e9);
    EXPECT_EQ(zoom.Zoom(), PictureZoom::kMost);
    zoom.ZoomBy(1e-9);
    EXPECT_EQ(zoom.Zoom(), PictureZoom::kLeast);
}

TEST(PictureZoom, StepsUpAndDownEndWhereTheyBegan)
{
    PictureZoom zoom = Shown({400, 400}, {200, 200});
    zoom.ShowActualSize();
    for (int i = 0; i < 7; ++i)
        zoom.ZoomBy(1.25);
    for (int i = 0; i < 7; ++i)
        zoom.ZoomBy(1 / 1.25);
    EXPECT_EQ(zoom.Zoom(), 1);
}

TEST(PictureZoom, PansToTheEdgesOnly)
{
    PictureZoom zoom = Shown({400, 400}, {200, 200});
    zoom.ShowActualSize();
    zoom.PanBy(30, -20);
    EXPECT_EQ(zoom.Left(), -70);
    EXPECT_EQ(zoom.Top(), -120);
    zoom.PanBy(1000, -1000);
    EXPECT_EQ(zoom.Left(), 0);
    EXPECT_EQ(zoom.Top(), -200);
    PictureZoom small = Shown({10, 10}, {200, 200});
    small.ShowActualSize();
    small.PanBy(50, 50);
    EXPECT_EQ(small.Left(), 95) << "a small picture stays in the middle";
}

TEST(PictureZoom, NoPictureAndNoWindowAreHarmless)
{
    PictureZoom zoom;
    zoom.Fit();
    zoom.ZoomBy(2);
    zoom.PanBy(1, 1);
    zoom.SetWindow({0, 0});
    zoom.SetPicture({5, 5});
    EXPECT_EQ(zoom.Zoom(), PictureZoom::kLeast);
    EXPECT_EQ(zoom.Scaled(), (Extents{1, 1}));
}

} // namespace
