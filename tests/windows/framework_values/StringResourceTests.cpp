#include "framework/include/afx.h"
#include "framework/window/ModuleState.h"
#include "tests/support/Thrown.h"
#include "tests/windows/framework_values/Strings.h"

#include <gtest/gtest.h>

// Strings loaded from the resources of this program.

namespace
{
class StringResource : public testing::Test
{
protected:
    StringResource() : m_previous(AfxGetResourceHandle())
    {
        AfxSetResourceHandle(GetModuleHandle(nullptr));
    }
    ~StringResource() override
    {
        AfxSetResourceHandle(m_previous);
    }

private:
    HINSTANCE m_previous;
};
} // namespace

TEST_F(StringResource, LoadsFromTheChain)
{
    CString text("old");
    EXPECT_TRUE(text.LoadString(IDS_VALUES_PLAIN));
    EXPECT_EQ(text, "Runway in sight");
    EXPECT_TRUE(text.LoadString(IDS_VALUES_DEGREE));
    EXPECT_EQ(text, "15 \xB0"
                    "C");
}

TEST_F(StringResource, AMissingStringLeavesTheText)
{
    CString text("old");
    EXPECT_FALSE(text.LoadString(IDS_VALUES_NONE));
    EXPECT_FALSE(text.LoadString(GetModuleHandle(nullptr), IDS_VALUES_NONE));
    EXPECT_FALSE(text.LoadString(0U));
    EXPECT_EQ(text, "old");
}

TEST_F(StringResource, LoadsFromOneModule)
{
    CString text;
    EXPECT_TRUE(text.LoadString(GetModuleHandle(nullptr), IDS_VALUES_LONG));
    EXPECT_EQ(text.GetLength(), 310);
    EXPECT_EQ(text.Right(3), "789");
    EXPECT_FALSE(text.LoadString(GetModuleHandle("kernel32.dll"), IDS_VALUES_LONG));
}

TEST_F(StringResource, AnIdentifierInPlaceOfATextLoadsIt)
{
    const CString text(MAKEINTRESOURCE(IDS_VALUES_PLAIN));
    EXPECT_EQ(text, "Runway in sight");
    const CString none(MAKEINTRESOURCE(IDS_VALUES_NONE));
    EXPECT_TRUE(none.IsEmpty());
}

TEST_F(StringResource, FormatsByAnIdentifier)
{
    CString text;
    text.Format(IDS_VALUES_FORMAT, 3, "ten");
    EXPECT_EQ(text, "3 of ten");
    text.AppendFormat(IDS_VALUES_FORMAT, 4, "x");
    EXPECT_EQ(text, "3 of ten4 of x");
    EXPECT_THROWN(text.Format(IDS_VALUES_NONE, 1), COleException);
    EXPECT_EQ(text, "3 of ten4 of x");
}
