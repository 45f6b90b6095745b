#include "aviation/core/NightScaleCache.h"

#include "framework/core/CString.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace
{

using Stored = std::map<std::string, std::string>;

/// Settings in memory, which note every access.
class Settings
{
public:
    explicit Settings(Stored stored) : m_stored(std::move(stored))
    {
    }

    vorn::NightScales Scales(vorn::NightScaleCache& cache)
    {
        return cache.Get(
            [&](const char* section, const char* key, const char* otherwise)
            {
                m_log.push_back(std::string("read ") + section + '/' + key);
                const auto found = m_stored.find(key);
                return CString(found == m_stored.end() ? otherwise : found->second.c_str());
            },
            [&](const char* section, const char* key, const char* text)
            {
                m_log.push_back(std::string("write ") + section + '/' + key + '=' + text);
                m_stored[key] = text;
            });
    }
    const std::vector<std::string>& Log() const
    {
        return m_log;
    }

private:
    Stored m_stored;
    std::vector<std::string> m_log;
};

} // namespace

TEST(NightScaleCache, DefaultsBecomeSettings)
{
    Settings settings(Stored{});
    vorn::NightScaleCache cache;
    const vorn::NightScales scales = settings.Scales(cache);
    EXPECT_EQ(scales.red, 0.4);
    EXPECT_EQ(scales.green, 0.4);
    EXPECT_EQ(scales.blue, 0.4);
    EXPECT_EQ(settings.Log(),
              (std::vector<std::string>{"read Colors/NVRedScale", "read Colors/NVGreenScale", "read Colors/NVBlueScale",
                                        "write Colors/NVRedScale=0.4", "write Colors/NVGreenScale=0.4",
                                        "write Colors/NVBlueScale=0.4"}));
}

TEST(NightScaleCache, StoredTextsAreWrittenBackAsTheyAre)
{
    Settings settings(Stored{{"NVRedScale", "0.50"}, {"NVBlueScale", " 1e-1 x"}});
    vorn::NightScaleCache cache;
    const vorn::NightScales scales = settings.Scales(cache);
    EXPECT_EQ(scales.red, 0.5);
    EXPECT_EQ(scales.green, 0.4);
    EXPECT_EQ(scales.blue, 0.1);
    ASSERT_EQ(settings.Log().size(), 6U);
    EXPECT_EQ(settings.Log()[3], "write Colors/NVRedScale=0.50");
    EXPECT_EQ(settings.Log()[5], "write Colors/NVBlueScale= 1e-1 x");
}

TEST(NightScaleCache, SettingsAreReadOnce)
{
    for (const char* red : {"0.4", "0", "dark", ""})
    {
        Settings settings(Stored{{"NVRedScale", red}});
        vorn::NightScaleCache cache;
        EXPECT_FALSE(cache.IsRead());
        settings.Scales(cache);
        EXPECT_TRUE(cache.IsRead());
        settings.Scales(cache);
        EXPECT_EQ(settings.Log().size(), 6U) << red;
    }
}

TEST(NightScaleCache, ANegativeRedScaleIsReadAgain)
{
    Settings settings(Stored{{"NVRedScale", "-0.5"}});
    vorn::NightScaleCache cache;
    EXPECT_EQ(settings.Scales(cache).red, -0.5);
    EXPECT_EQ(settings.Scales(cache).red, -0.5);
    EXPECT_EQ(settings.Log().size(), 12U);

    Settings others(Stored{{"NVGreenScale", "-0.5"}, {"NVBlueScale", "-2"}});
    vorn::NightScaleCache second;
    others.Scales(second);
    others.Scales(second);
    EXPECT_EQ(others.Log().size(), 6U);
}

TEST(NightScaleCache, ItsTablesAreThoseOfTheScalesReadLast)
{
    Settings settings(Stored{{"NVRedScale", "-0.5"}, {"NVGreenScale", "0.5"}, {"NVBlueScale", "1"}});
    vorn::NightScaleCache cache;
    EXPECT_EQ(cache.Tables().Dimmed(0x00FFFFFF), 0x02000000U);
    settings.Scales(cache);
    EXPECT_EQ(cache.Tables().Dimmed(0x00643264), 0x026419CEU); // -50 is 206 in its low byte
    Settings others(Stored{{"NVRedScale", "1"}, {"NVGreenScale", "0.5"}, {"NVBlueScale", "1"}});
    others.Scales(cache);
    EXPECT_EQ(cache.Tables().Dimmed(0x00643264), 0x02641964U);
}

TEST(NightScaleOf, ANumberIsWhatATextBeginsWith)
{
    EXPECT_EQ(vorn::NightScaleOf("0.4"), 0.4);
    EXPECT_EQ(vorn::NightScaleOf(" \t\r\n.25 of it"), 0.25);
    EXPECT_EQ(vorn::NightScaleOf("+1.5"), 1.5);
    EXPECT_EQ(vorn::NightScaleOf("-2"), -2);
    EXPECT_EQ(vorn::NightScaleOf("5e-1e"), 0.5);
    EXPECT_EQ(vorn::NightScaleOf("0,4"), 0);
    for (const char* none : {"", " ", "dark", "+", "-", "+-1", "nan", "inf", "-inf", "1e999", "-1e999"})
    {
        EXPECT_EQ(vorn::NightScaleOf(none), 0) << none;
    }
}
