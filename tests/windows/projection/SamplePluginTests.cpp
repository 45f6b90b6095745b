#include "tests/windows/projection/ProjectionFixture.h"

#include <array>
#include <cmath>

using namespace vorn::test;

namespace
{
constexpr double kRadian = 3.14159265358979324 / 180;

class SamplePluginTest : public ProjectionRegistry
{
protected:
    SamplePluginTest()
    {
        EXPECT_TRUE(Start({SamplePath()}));
        m_projection = Make(ProjectionLib::mpInstance->NumBuiltIn());
    }

    std::unique_ptr<Projection> m_projection;
};
} // namespace

TEST_F(SamplePluginTest, HasItsNameAndKind)
{
    ASSERT_NE(m_projection, nullptr);
    EXPECT_EQ(Names(), std::vector<std::string>({"Azimuthal equidistant"}));
    EXPECT_STREQ(m_projection->QueryProjectionName(), "Azimuthal equidistant");
    EXPECT_FALSE(m_projection->IsConformal() || m_projection->IsCylindrical() || m_projection->IsConic());
    EXPECT_TRUE(m_projection->IsZoomable());
    EXPECT_EQ(m_projection->NMapLimitPts(), 72);
    EXPECT_EQ(m_projection->BackgroundColor(), 0xFFFFFFU);
}

TEST_F(SamplePluginTest, DistancesFromTheMapPoleAreTrue)
{
    ASSERT_TRUE(m_projection->SetMapPole(40, 10));
    struct Place
    {
        double lat;
        double lon;
        double degrees; ///< on the great circle from 40 north 10 east
    };
    // Along the meridian, over the pole, and to where the great circle eastward meets the equator.
    for (const Place& place : {Place{70, 10, 30}, Place{-20, 10, 60}, Place{60, -170, 80}, Place{0, 100, 90}})
    {
        double x = 0;
        double y = 0;
        ASSERT_TRUE(m_projection->LLtoXY(place.lat, place.lon, x, y));
        EXPECT_NEAR(std::hypot(x, y), place.degrees * kRadian, 1e-14);
        double lat = 0;
        double lon = 0;
        ASSERT_TRUE(m_projection->XYtoLL(x, y, lat, lon));
        EXPECT_NEAR(lat, place.lat, 1e-12);
        EXPECT_NEAR(lon, place.lon, 1e-12);
    }
    EXPECT_NEAR(m_projection->ScaleMult(40, 10), 1, 1e-15);
    EXPECT_NEAR(m_projection->ScaleMult(70, 10), 30 * kRadian / 0.5, 1e-14); // across the line of sight
}

TEST_F(SamplePluginTest, TheRangeIsItsParameter)
{
    ASSERT_EQ(m_projection->NumParams(), 1);
    EXPECT_STREQ(m_projection->ParamName(0), "Range");
    EXPECT_EQ(m_projection->GetParamValue(0), 179);
    EXPECT_FALSE(m_projection->SetParamValue(0, 180));
    EXPECT_FALSE(m_projection->SetParamValue(1, 50));
    ASSERT_TRUE(m_projection->SetParamValue(0, 50));
    double x = 0;
    double y = 0;
    EXPECT_TRUE(m_projection->LLtoXY(0, 49.9, x, y));
    EXPECT_FALSE(m_projection->LLtoXY(0, 50.1, x, y));
    EXPECT_FALSE(m_projection->PanTo(0, 60));
    EXPECT_TRUE(m_projection->PanTo(0, -40));
    EXPECT_TRUE(m_projection->CenterMapXY(x, y));
    EXPECT_NEAR(x, -40 * kRadian, 1e-15);
}

TEST_F(SamplePluginTest, ClonesAndStoredStatesAreAlike)
{
    ASSERT_TRUE(m_projection->SetMapPole(40, 10));
    m_projection->SetSkew(30);
    std::array<char, 200> buffer{};
    char* cursor = buffer.data();
    unsigned long remaining = buffer.size();
    ASSERT_TRUE(m_projection->ReadWrite(cursor, remaining, false));
    const auto length = static_cast<unsigned long>(cursor - buffer.data());
    EXPECT_EQ(remaining, buffer.size() - length);

    std::unique_ptr<Projection> clone(m_projection->Clone());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetSkew(), 30);
    m_projection->OffsetSkew(200);
    EXPECT_EQ(m_projection->GetSkew(), -130);
    EXPECT_EQ(clone->GetSkew(), 30);

    cursor = buffer.data();
    remaining = length - 1;
    EXPECT_FALSE(m_projection->ReadWrite(cursor, remaining, true));
    remaining = length;
    EXPECT_TRUE(m_projection->ReadWrite(cursor, remaining, true));
    EXPECT_EQ(remaining, 0U);
    EXPECT_EQ(m_projection->GetSkew(), 30);

    WinProjectionLib::Deinit();
    m_projection.reset();
    double lat = 0;
    double lon = 0;
    clone->GetCenterLatLon(lat, lon); // the clone holds the module by itself
    EXPECT_EQ(lat, 40);
    EXPECT_EQ(lon, 10);
}
