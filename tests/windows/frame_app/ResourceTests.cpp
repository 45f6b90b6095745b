#include "frame/VornStrings.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

TEST(LibraryResources, SayWhatTheLibraryIs)
{
    DWORD unused = 0;
    std::vector<char> resource(GetFileVersionInfoSizeA("VornCommon.dll", &unused));
    ASSERT_FALSE(resource.empty());
    ASSERT_TRUE(GetFileVersionInfoA("VornCommon.dll", 0, static_cast<DWORD>(resource.size()), resource.data()));
    char* name = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueA(resource.data(), "\\StringFileInfo\\040904E4\\OriginalFilename",
                               reinterpret_cast<void**>(&name), &length));
    EXPECT_STREQ(name, "VornCommon.dll");
}

TEST(LibraryResources, HoldEveryText)
{
    for (const UINT id :
         {IDS_VORN_LIBRARY, IDS_VORN_DISTANCE, IDS_VORN_SPEED, IDS_VORN_FUEL, IDS_VORN_MASS, IDS_VORN_TEMPERATURE,
          IDS_VORN_SHORT_DISTANCE, IDS_VORN_PRESSURE, IDS_VORN_FROM_REGISTRY, IDS_VORN_FROM_INI, IDS_VORN_FROM_DEFAULT})
    {
        char text[100];
        EXPECT_GT(LoadStringA(GetModuleHandleA("VornCommon.dll"), id, text, sizeof text), 0) << id;
    }
}
