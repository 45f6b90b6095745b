#include "family/VornChart/core/ExternalProj.h"
#include "tests/core/ProjectionCases.h"

#include <cstring>
#include <vornplugin.h>

using namespace vorn::test;

namespace
{
/// What the plug-in below saw last, and how many of its projections live.
struct Seen
{
    VornProjection handle = 0;
    std::vector<double> numbers;
    int index = -1;
    int destroyed = 0;
    int answer = 1;
    double result = 0;
    const char* text = "Plain";
};
Seen g_seen;

/// A plug-in of functions with the published signatures, each noting what it is given.
namespace plugin
{
int TakeHandle(VornProjection handle)
{
    g_seen.handle = handle;
    return g_seen.answer;
}
void Destroy(VornProjection handle)
{
    g_seen.handle = handle;
    ++g_seen.destroyed;
}
const char* Name()
{
    return g_seen.text;
}
int Transfer(VornProjection handle, char** cursor, unsigned long* remaining, int read)
{
    g_seen.handle = handle;
    g_seen.index = read;
    *cursor += 3;
    *remaining -= 3;
    return g_seen.answer;
}
void PairOut(VornProjection handle, double* first, double* second)
{
    g_seen.handle = handle;
    *first = 11;
    *second = 12;
}
void PairTurned(VornProjection handle, double* x, double* y)
{
    g_seen.handle = handle;
    std::swap(*x, *y);
}
double GiveNumber(VornProjection handle)
{
    g_seen.handle = handle;
    return 7.5;
}
void TakeNumber(VornProjection handle, double number)
{
    g_seen.handle = handle;
    g_seen.numbers = {number};
}
int PairToPair(VornProjection handle, double a, double b, double* c, double* d)
{
    g_seen.handle = handle;
    g_seen.numbers = {a, b};
    *c = a + 100;
    *d = g_seen.result != 0 ? g_seen.result : b + 100;
    return g_seen.answer;
}
VornProjection Copy(VornProjection handle)
{
    return g_seen.answer != 0 ? handle + 1 : 0;
}
void FourOut(VornProjection, double* a, double* b, double* c, double* d)
{
    *a = 1;
    *b = 2;
    *c = 3;
    *d = 4;
}
int TakePair(VornProjection handle, double lat, double lon)
{
    g_seen.handle = handle;
    g_seen.numbers = {lat, lon};
    return g_seen.answer;
}
int AnswerPair(VornProjection, double* x, double* y)
{
    *x = 5;
    *y = 6;
    return g_seen.answer;
}
const char* IndexName(VornProjection, int index)
{
    g_seen.index = index;
    return g_seen.text;
}
double IndexNumber(VornProjection, int index)
{
    g_seen.index = index;
    return 0.25;
}
int TakeIndexNumber(VornProjection, int index, double value)
{
    g_seen.index = index;
    g_seen.numbers = {value};
    return g_seen.answer;
}
unsigned long Colour(VornProjection)
{
    return 0x123456;
}
int IndexPair(VornProjection, int index, double* x, double* y)
{
    g_seen.index = index;
    *x = 8;
    *y = 9;
    return g_seen.answer;
}
double PairToNumber(VornProjection, double lat, double lon)
{
    g_seen.numbers = {lat, lon};
    return lat + lon;
}

/// By the name under which a module would export it.
FARPROC Find(const std::string& name)
{
    const auto is = [&name](const char* other)
    {
        return name == other;
    };
    const auto entry = [](auto* function)
    {
        return reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(function));
    };
    for (const char* flag : {"InitProjection", "IsCylindrical", "IsConic", "IsConformal", "IsZoomable", "Is3D",
                             "NumParams", "NMapLimitPts"})
    {
        if (is(flag))
        {
            return entry(TakeHandle);
        }
    }
    return is("DestroyProjection")      ? entry(Destroy)
           : is("QueryProjectionName")  ? entry(Name)
           : is("ReadWrite")            ? entry(Transfer)
           : is("GetCenterLatLon")      ? entry(PairOut)
           : is("Skew") || is("UnSkew") ? entry(PairTurned)
           : is("GetSkew")              ? entry(GiveNumber)
           : is("SetSkew")              ? entry(TakeNumber)
           : is("OffsetSkew")           ? entry(TakeNumber)
           : is("LLtoXY")               ? entry(PairToPair)
           : is("XYtoLL")               ? entry(PairToPair)
           : is("Clone")                ? entry(Copy)
           : is("MinMaxMapXY")          ? entry(FourOut)
           : is("SetMapPole")           ? entry(TakePair)
           : is("PanTo")                ? entry(TakePair)
           : is("CenterMapXY")          ? entry(AnswerPair)
           : is("ParamName")            ? entry(IndexName)
           : is("GetParamValue")        ? entry(IndexNumber)
           : is("SetParamValue")        ? entry(TakeIndexNumber)
           : is("BackgroundColor")      ? entry(Colour)
           : is("MapLimitPt")           ? entry(IndexPair)
           : is("ScaleMult")            ? entry(PairToNumber)
           : is("ScaleError")           ? entry(PairToNumber)
                                        : nullptr;
}
} // namespace plugin

class ExternalProjTest : public testing::Test
{
protected:
    ExternalProjTest()
    {
        g_seen = Seen();
    }

    static std::unique_ptr<ExternalProj> Bound(unsigned long handle)
    {
        auto projection = std::make_unique<ExternalProj>(handle);
        for (int i = 0; i < ExternalProj::kEntryPoints; ++i)
        {
            projection->Bind(i, plugin::Find(ExternalProj::EntryPointName(i)));
        }
        return projection;
    }
};
} // namespace

TEST_F(ExternalProjTest, EntryPointsHaveTheirOrder)
{
    const std::array<const char*, 31> names = {"InitProjection",
                                               "DestroyProjection",
                                               "QueryProjectionName",
                                               "ReadWrite",
                                               "GetCenterLatLon",
                                               "Skew",
                                               "UnSkew",
                                               "GetSkew",
                                               "SetSkew",
                                               "OffsetSkew",
                                               "LLtoXY",
                                               "XYtoLL",
                                               "Clone",
                                               "MinMaxMapXY",
                                               "SetMapPole",
                                               "PanTo",
                                               "CenterMapXY",
                                               "IsCylindrical",
                                               "IsConic",
                                               "IsConformal",
                                               "IsZoomable",
                                               "Is3D",
                                               "NumParams",
                                               "ParamName",
                                               "GetParamValue",
                                               "SetParamValue",
                                               "BackgroundColor",
                                               "NMapLimitPts",
                                               "MapLimitPt",
                                               "ScaleMult",
                                               "ScaleError"};
    static_assert(ExternalProj::kEntryPoints == 31);
    for (int i = 0; i < 31; ++i)
    {
        EXPECT_STREQ(ExternalProj::EntryPointName(i), names[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(ExternalProj::EntryPointName(-1), nullptr);
    EXPECT_EQ(ExternalProj::EntryPointName(31), nullptr);
}

TEST_F(ExternalProjTest, WithoutEntryPointsEveryAnswerIsHarmless)
{
    ExternalProj projection(5, 0, 0);
    EXPECT_TRUE(projection.Init());
    EXPECT_STREQ(projection.QueryProjectionName(), "");
    EXPECT_STREQ(projection.ParamName(0), "");
    XY pair{3, 4};
    EXPECT_FALSE(projection.LLtoXY(1, 2, pair.x, pair.y));
    EXPECT_FALSE(projection.XYtoLL(1, 2, pair.x, pair.y));
    EXPECT_FALSE(projection.MapLimitPt(0, pair.x, pair.y));
    EXPECT_FALSE(projection.CenterMapXY(pair.x, pair.y));
    projection.Skew(pair.x, pair.y);
    projection.UnSkew(pair.x, pair.y);
    EXPECT_EQ(pair.x, 3);
    EXPECT_EQ(pair.y, 4);
    projection.GetCenterLatLon(pair.x, pair.y);
    EXPECT_EQ(pair.x, 0);
    EXPECT_EQ(pair.y, 0);
    projection.SetSkew(10);
    projection.OffsetSkew(10);
    EXPECT_EQ(projection.GetSkew(), 0);
    EXPECT_FALSE(projection.SetMapPole(1, 2));
    EXPECT_FALSE(projection.PanTo(1, 2));
    EXPECT_FALSE(projection.SetParamValue(0, 1));
    EXPECT_EQ(projection.GetParamValue(0), 0);
    EXPECT_EQ(projection.NumParams(), 0);
    EXPECT_EQ(projection.NMapLimitPts(), 0);
    EXPECT_FALSE(projection.IsCylindrical() || projection.IsConic() || projection.IsConformal() || projection.Is3D());
    EXPECT_TRUE(projection.IsZoomable());
    EXPECT_EQ(projection.BackgroundColor(), 0xFFFFFFU);
    EXPECT_EQ(projection.ScaleMult(1, 2), 1);
    EXPECT_EQ(projection.ScaleError(1, 2), 0);
    EXPECT_EQ(projection.Clone(), nullptr);
    char buffer[8] = "";
    char* cursor = buffer;
    unsigned long remaining = sizeof buffer;
    EXPECT_FALSE(projection.ReadWrite(cursor, remaining, true));
    EXPECT_EQ(cursor, buffer);
    double corner[4] = {1, 2, 3, 4};
    projection.MinMaxMapXY(corner[0], corner[1], corner[2], corner[3]);
    for (const double value : corner)
    {
        EXPECT_EQ(value, 0);
    }
}

TEST_F(ExternalProjTest, ForwardsEveryCallWithItsHandle)
{
    const auto projection = Bound(42);
    EXPECT_TRUE(projection->Init());
    EXPECT_EQ(g_seen.handle, 42U);
    EXPECT_STREQ(projection->QueryProjectionName(), "Plain");
    XY pair{};
    projection->GetCenterLatLon(pair.x, pair.y);
    EXPECT_EQ(pair.x, 11);
    EXPECT_EQ(pair.y, 12);
    projection->Skew(pair.x, pair.y);
    EXPECT_EQ(pair.x, 12);
    projection->UnSkew(pair.x, pair.y);
    EXPECT_EQ(pair.x, 11);
    EXPECT_EQ(projection->GetSkew(), 7.5);
    projection->SetSkew(30);
    EXPECT_EQ(g_seen.numbers, (std::vector<double>{30}));
    projection->OffsetSkew(-3);
    EXPECT_EQ(g_seen.numbers, (std::vector<double>{-3}));
    EXPECT_TRUE(projection->LLtoXY(1, 2, pair.x, pair.y));
    EXPECT_EQ(pair.x, 101);
    EXPECT_EQ(pair.y, 102);
    EXPECT_TRUE(projection->XYtoLL(3, 4, pair.x, pair.y));
    EXPECT_EQ(pair.x, 103);
    EXPECT_TRUE(projection->SetMapPole(5, 6));
    EXPECT_EQ(g_seen.numbers, (std::vector<double>{5, 6}));
    EXPECT_TRUE(projection->PanTo(7, 8));
    EXPECT_EQ(g_seen.numbers, (std::vector<double>{7, 8}));
    EXPECT_TRUE(projection->CenterMapXY(pair.x, pair.y));
    EXPECT_EQ(pair.y, 6);
    EXPECT_TRUE(projection->IsCylindrical() && projection->IsConic() && projection->IsConformal() &&
                projection->IsZoomable() && projection->Is3D());
    EXPECT_EQ(projection->NumParams(), 1);
    EXPECT_EQ(projection->NMapLimitPts(), 1);
    EXPECT_STREQ(projection->ParamName(9), "Plain");
    EXPECT_EQ(g_seen.index, 9);
    EXPECT_EQ(projection->GetParamValue(8), 0.25);
    EXPECT_EQ(g_seen.index, 8);
    EXPECT_TRUE(projection->SetParamValue(7, 1.5));
    EXPECT_EQ(g_seen.index, 7);
    EXPECT_EQ(g_seen.numbers, (std::vector<double>{1.5}));
    EXPECT_EQ(projection->BackgroundColor(), 0x123456U);
    EXPECT_TRUE(projection->MapLimitPt(6, pair.x, pair.y));
    EXPECT_EQ(g_seen.index, 6);
    EXPECT_EQ(pair.x, 8);
    EXPECT_EQ(projection->ScaleMult(1, 2), 3);
    EXPECT_EQ(projection->ScaleError(3, 4), 7);
    double corner[4]{};
    projection->MinMaxMapXY(corner[0], corner[1], corner[2], corner[3]);
    EXPECT_EQ(corner[0], 1);
    EXPECT_EQ(corner[3], 4);
    char buffer[8] = "";
    char* cursor = buffer;
    unsigned long remaining = sizeof buffer;
    EXPECT_TRUE(projection->ReadWrite(cursor, remaining, true));
    EXPECT_EQ(cursor, buffer + 3);
    EXPECT_EQ(remaining, 5U);
    EXPECT_EQ(g_seen.index, 1);
    EXPECT_TRUE(projection->ReadWrite(cursor, remaining, false));
    EXPECT_EQ(g_seen.index, 0);
}

TEST_F(ExternalProjTest, ARefusalLeavesTheResultsAlone)
{
    const auto projection = Bound(42);
    g_seen.answer = 0;
    XY pair{3, 4};
    EXPECT_FALSE(projection->Init());
    EXPECT_FALSE(projection->LLtoXY(1, 2, pair.x, pair.y));
    EXPECT_FALSE(projection->XYtoLL(1, 2, pair.x, pair.y));
    EXPECT_FALSE(projection->CenterMapXY(pair.x, pair.y));
    EXPECT_FALSE(projection->MapLimitPt(0, pair.x, pair.y));
    EXPECT_FALSE(projection->SetMapPole(1, 2));
    EXPECT_FALSE(projection->PanTo(1, 2));
    EXPECT_FALSE(projection->SetParamValue(0, 2));
    EXPECT_FALSE(projection->IsZoomable());
    EXPECT_EQ(projection->Clone(), nullptr);
    EXPECT_EQ(pair.x, 3);
    EXPECT_EQ(pair.y, 4);
}

TEST_F(ExternalProjTest, WhatIsNoNumberGoesNeitherInNorOut)
{
    const auto projection = Bound(42);
    XY pair{3, 4};
    for (const double bad : {kNoNumber, kEndless, -kEndless})
    {
        EXPECT_FALSE(projection->LLtoXY(bad, 0, pair.x, pair.y));
        EXPECT_FALSE(projection->XYtoLL(0, bad, pair.x, pair.y));
        EXPECT_FALSE(projection->SetMapPole(bad, 0));
        EXPECT_FALSE(projection->PanTo(0, bad));
        EXPECT_FALSE(projection->SetParamValue(0, bad));
        projection->SetSkew(bad);
        projection->OffsetSkew(bad);
        EXPECT_TRUE(g_seen.numbers.empty());
        g_seen.result = bad;
        EXPECT_FALSE(projection->LLtoXY(1, 2, pair.x, pair.y));
        EXPECT_EQ(pair.x, 3);
        EXPECT_EQ(pair.y, 4);
        g_seen = Seen();
    }
}

TEST_F(ExternalProjTest, ANullTextIsEmpty)
{
    const auto projection = Bound(42);
    g_seen.text = nullptr;
    EXPECT_STREQ(projection->QueryProjectionName(), "");
    EXPECT_STREQ(projection->ParamName(0), "");
}

TEST_F(ExternalProjTest, EndsItsProjectionOnceAndItsCloneByItself)
{
    {
        const auto projection = Bound(42);
        const std::unique_ptr<Projection> clone(projection->Clone());
        ASSERT_NE(clone, nullptr);
        EXPECT_FALSE(clone->SetMapPole(1, kNoNumber));
        EXPECT_TRUE(clone->SetMapPole(1, 2));
        EXPECT_EQ(g_seen.handle, 43U); // the plug-in's copy
        EXPECT_EQ(g_seen.destroyed, 0);
    }
    EXPECT_EQ(g_seen.destroyed, 2);
    EXPECT_EQ(g_seen.handle, 42U);
}

TEST_F(ExternalProjTest, BindingBeyondTheTableChangesNothing)
{
    ExternalProj projection(1);
    for (const int index : {-1, 31, 1000, std::numeric_limits<int>::min()})
    {
        projection.Bind(index, plugin::Find("Is3D"));
    }
    EXPECT_FALSE(projection.Is3D());
    projection.Bind(21, plugin::Find("Is3D"));
    EXPECT_TRUE(projection.Is3D());
    projection.Bind(21, nullptr);
    EXPECT_FALSE(projection.Is3D());
}
