#include "apps/chart/core/ChartFeatures.h"
#include "apps/chart/core/Shores.h"

#include <gtest/gtest.h>

#include <map>

using namespace vorn::chart;

namespace
{

using Record = std::map<std::string, std::string>;

FieldOf FieldsOf(const Record& record)
{
    return [record](const char* name)
    {
        const auto found = record.find(name);
        return found == record.end() ? std::string() : found->second;
    };
}

Record SeattleAid()
{
    return {{"IDENT", "SEA"},         {"NAME", "Seattle"},       {"TYPE", "VORTAC"}, {"FREQ_KHZ", "116800"},
            {"LATITUDE", "47.43540"}, {"LONGITUDE", "-122.310"}, {"ELEV_FT", "354"}, {"VAR_DEG", "17.6"}};
}

Record RunwayRecord(const char* name, const char* length, const char* surface = "asphalt")
{
    return {{"AIRPORT", "KSEA"},  {"NAME", "Seattle-Tacoma"}, {"RUNWAY", name},       {"LENGTH_FT", length},
            {"SURFACE", surface}, {"LIGHTED", "yes"},         {"LE_LAT", "47.4638"},  {"LE_LON", "-122.311"},
            {"LE_ELEV", "430"},   {"HE_LAT", "47.4380"},      {"HE_LON", "-122.311"}, {"HE_ELEV", "363"}};
}

} // namespace

TEST(ChartFeatures, MakeAnAidOfARecord)
{
    const std::optional<Aid> aid = AidFrom(FieldsOf(SeattleAid()));
    ASSERT_TRUE(aid);
    EXPECT_EQ(aid->ident, "SEA");
    EXPECT_EQ(aid->name, "Seattle");
    EXPECT_EQ(aid->kind, AidKind::Vortac);
    EXPECT_EQ(aid->kilohertz, 116800);
    EXPECT_EQ(aid->position, LatLon(47.4354, -122.31));
    EXPECT_EQ(aid->elevation, 354);
    EXPECT_EQ(aid->variation, 17.6);
}

TEST(ChartFeatures, PassOverAidsWithoutIdentPlaceOrKind)
{
    for (const auto& [field, value] :
         {std::pair("IDENT", ""), std::pair("TYPE", "VOR-TAC"), std::pair("LATITUDE", ""),
          std::pair("LONGITUDE", "12W"), std::pair("LATITUDE", "90.01"), std::pair("LONGITUDE", "-180.5"),
          std::pair("LATITUDE", "nan"), std::pair("LONGITUDE", "inf")})
    {
        Record record = SeattleAid();
        record[field] = value;
        EXPECT_FALSE(AidFrom(FieldsOf(record))) << field << ' ' << value;
    }
}

TEST(ChartFeatures, TakeAnAidWhoseFactsAreUnknown)
{
    Record record = SeattleAid();
    record["ELEV_FT"] = record["VAR_DEG"] = record["FREQ_KHZ"] = "";
    const std::optional<Aid> aid = AidFrom(FieldsOf(record));
    ASSERT_TRUE(aid);
    EXPECT_FALSE(aid->elevation);
    EXPECT_EQ(aid->variation, 0);
    EXPECT_EQ(FrequencyText(*aid), "0");
}

TEST(ChartFeatures, KnowAllKindsByTheirWords)
{
    EXPECT_EQ(AidKindOf("VOR"), AidKind::Vor);
    EXPECT_EQ(AidKindOf("VOR-DME"), AidKind::VorDme);
    EXPECT_EQ(AidKindOf("VORTAC"), AidKind::Vortac);
    EXPECT_EQ(AidKindOf("DME"), AidKind::Dme);
    EXPECT_EQ(AidKindOf("TACAN"), AidKind::Tacan);
    EXPECT_EQ(AidKindOf("NDB"), AidKind::Ndb);
    EXPECT_EQ(AidKindOf("NDB-DME"), AidKind::NdbDme);
    EXPECT_FALSE(AidKindOf(""));
    EXPECT_FALSE(AidKindOf("vor"));
}

TEST(ChartFeatures, WriteFrequenciesAsChartsDo)
{
    Aid aid;
    for (const auto& [kilohertz, text] : {std::pair(116800, "116.8"), std::pair(113000, "113.0"),
                                          std::pair(109450, "109.45"), std::pair(108025, "108.025")})
    {
        aid.kilohertz = kilohertz;
        EXPECT_EQ(FrequencyText(aid), text);
    }
    aid.kind = AidKind::Ndb;
    aid.kilohertz = 1030;
    EXPECT_EQ(FrequencyText(aid), "1030");
}

TEST(ChartFeatures, GatherTheRunwaysOfAnAerodromeLongestFirst)
{
    std::vector<Aerodrome> aerodromes;
    for (const auto& [name, length] :
         {std::pair("16C/34C", "9426"), std::pair("16L/34R", "11901"), std::pair("16R/34L", "8500")})
        AddRunway(aerodromes, *AerodromeFrom(FieldsOf(RunwayRecord(name, length))));
    Record other = RunwayRecord("03/21", "6000");
    other["AIRPORT"] = "KPDX";
    AddRunway(aerodromes, *AerodromeFrom(FieldsOf(other)));
    ASSERT_EQ(aerodromes.size(), 2u);
    ASSERT_EQ(aerodromes[0].runways.size(), 3u);
    EXPECT_EQ(aerodromes[0].Longest().name, "16L/34R");
    EXPECT_EQ(aerodromes[0].runways[2].length, 8500);
    EXPECT_EQ(aerodromes[0].elevation, 430);
    EXPECT_NEAR(aerodromes[0].position.Lat(), 47.4509, 1e-9);
    EXPECT_NEAR(aerodromes[0].position.Lon(), -122.311, 1e-9);
    EXPECT_EQ(aerodromes[1].ident, "KPDX");
}

TEST(ChartFeatures, KnowPavedRunwaysByTheirSurface)
{
    EXPECT_TRUE(AerodromeFrom(FieldsOf(RunwayRecord("1/2", "100", "concrete")))->Longest().hard);
    EXPECT_FALSE(AerodromeFrom(FieldsOf(RunwayRecord("1/2", "100", "gravel")))->Longest().hard);
    EXPECT_FALSE(AerodromeFrom(FieldsOf(RunwayRecord("1/2", "100", "")))->Longest().hard);
}

TEST(ChartFeatures, ReadNumbersWithAPointAndNothingElse)
{
    EXPECT_EQ(NumberIn(" -12.50 "), -12.5);
    EXPECT_EQ(NumberIn("0"), 0);
    for (const char* text : {"", " ", "1,5", "1 2", "x", "nan", "inf", "1e999", "--1"})
        EXPECT_FALSE(NumberIn(text)) << text;
}

TEST(Shores, DivideStraightStretchesAndCloseOutlines)
{
    std::vector<Shore> shores;
    for (const auto& [lat, lon] : {std::pair("40", "-125"), std::pair("40", "-124"), std::pair("41", "-124")})
        AddShorePoint(shores, FieldsOf({{"PART", "001"}, {"KIND", "land"}, {"LATITUDE", lat}, {"LONGITUDE", lon}}));
    AddShorePoint(shores, FieldsOf({{"PART", "002"}, {"KIND", "border"}, {"LATITUDE", "49"}, {"LONGITUDE", "-123"}}));
    AddShorePoint(shores, FieldsOf({{"PART", "002"}, {"KIND", "border"}, {"LATITUDE", "49"}, {"LONGITUDE", "-122"}}));
    AddShorePoint(shores, FieldsOf({{"PART", "003"}, {"KIND", "swamp"}, {"LATITUDE", "49"}, {"LONGITUDE", "-122"}}));
    FinishShores(shores);
    ASSERT_EQ(shores.size(), 2u);
    // Two halves for each of the three sides of a degree.
    ASSERT_EQ(shores[0].points.size(), 6u);
    EXPECT_EQ(shores[0].points[1], LatLon(40, -124.5));
    EXPECT_EQ(shores[0].points[5], LatLon(40.5, -124.5));
    EXPECT_EQ(shores[0].south, 40);
    EXPECT_EQ(shores[0].north, 41);
    EXPECT_EQ(shores[0].west, -125);
    EXPECT_EQ(shores[0].east, -124);
    ASSERT_EQ(shores[1].points.size(), 3u);
    EXPECT_EQ(shores[1].points[2], LatLon(49, -122));
}
