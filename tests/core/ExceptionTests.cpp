#include "framework/core/Exception.h"

#include "framework/core/FileException.h"
#include "framework/core/OleException.h"
#include "tests/support/Thrown.h"

#include <gtest/gtest.h>
#include <string>

namespace
{
int g_alive = 0;

class CountedException : public CException
{
    DECLARE_DYNAMIC(CountedException)
    CountedException()
    {
        ++g_alive;
    }
    ~CountedException() override
    {
        --g_alive;
    }
};
IMPLEMENT_DYNAMIC(CountedException, CException)

std::string g_reported;

int RecordReport(LPCSTR message, UINT type, UINT messageId)
{
    g_reported = std::string(message) + "|" + std::to_string(type) + "|" + std::to_string(messageId);
    return 6;
}
} // namespace

TEST(Exception, ThrowFunctionsThrowTheirKind)
{
    EXPECT_THROW(AfxThrowMemoryException(), CMemoryException*);
    EXPECT_THROW(AfxThrowNotSupportedException(), CNotSupportedException*);
    EXPECT_THROW(AfxThrowInvalidArgException(), CInvalidArgException*);
    EXPECT_THROW(AfxThrowResourceException(), CResourceException*);
    EXPECT_THROW(AfxThrowUserException(), CUserException*);
    EXPECT_THROW(AfxThrowMemoryException(), CSimpleException*);
    EXPECT_THROW(AfxThrowMemoryException(), CException*);
}

TEST(Exception, StaticExceptionsSurviveDelete)
{
    for (int i = 0; i < 2; ++i)
    {
        try
        {
            AfxThrowInvalidArgException();
        }
        catch (CException* error)
        {
            EXPECT_TRUE(error->IsKindOf(RUNTIME_CLASS(CInvalidArgException)));
            EXPECT_FALSE(error->IsKindOf(RUNTIME_CLASS(CMemoryException)));
            error->Delete();
        }
    }
}

TEST(Exception, AtlThrowCarriesTheCode)
{
    try
    {
        AtlThrow(E_INVALIDARG);
    }
    catch (COleException* error)
    {
        EXPECT_EQ(static_cast<DWORD>(error->m_sc), 0x80070057U);
        EXPECT_EQ(COleException::Process(error), E_INVALIDARG);
        char text[80];
        EXPECT_TRUE(error->GetErrorMessage(text, sizeof(text)));
        EXPECT_STREQ(text, "The operation failed with code 0x80070057.");
        error->Delete();
    }
    EXPECT_THROW(AtlThrow(E_OUTOFMEMORY), CMemoryException*);
    EXPECT_THROWN(AfxThrowOleException(E_FAIL), COleException);
}

TEST(Exception, ResultCodesStandForOtherKinds)
{
    EXPECT_EQ(COleException::Process(nullptr), E_FAIL);
    const CMemoryException memory;
    EXPECT_EQ(COleException::Process(&memory), E_OUTOFMEMORY);
    const CInvalidArgException argument;
    EXPECT_EQ(COleException::Process(&argument), E_INVALIDARG);
    const CFileException file;
    EXPECT_EQ(COleException::Process(&file), E_FAIL);
}

TEST(Exception, CatchMacroEndsTheException)
{
    bool isCaught = false;
    TRY
    {
        THROW(new CountedException);
    }
    CATCH(CMemoryException, error)
    {
        FAIL() << error;
    }
    AND_CATCH(CountedException, error)
    {
        isCaught = error->IsKindOf(RUNTIME_CLASS(CountedException)) != FALSE;
        EXPECT_EQ(g_alive, 1);
    }
    END_CATCH
    EXPECT_TRUE(isCaught);
    EXPECT_EQ(g_alive, 0);
}

TEST(Exception, ThrowLastHandsTheSameExceptionOn)
{
    bool isCaught = false;
    TRY{TRY{THROW(new CountedException);
}
CATCH_ALL(error)
{
    EXPECT_NE(error, nullptr);
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH_ALL(error)
{
    isCaught = error->IsKindOf(RUNTIME_CLASS(CountedException)) != FALSE;
}
END_CATCH_ALL
EXPECT_TRUE(isCaught);
EXPECT_EQ(g_alive, 0);
}

TEST(Exception, AnotherExceptionFromAHandlerEndsTheFirst)
{
    TRY{TRY{THROW(new CountedException);
}
CATCH(CountedException, error)
{
    EXPECT_NE(error, nullptr);
    AfxThrowUserException();
}
END_CATCH
}
CATCH(CUserException, error)
{
    EXPECT_NE(error, nullptr);
}
END_CATCH
EXPECT_EQ(g_alive, 0);
}

TEST(Exception, DescriptionsFitTheBuffer)
{
    const CMemoryException error;
    char text[80];
    UINT help = 5;
    EXPECT_TRUE(error.GetErrorMessage(text, sizeof(text), &help));
    EXPECT_STREQ(text, "There is not enough memory.");
    EXPECT_EQ(help, 0u);
    char cut[6];
    EXPECT_TRUE(error.GetErrorMessage(cut, sizeof(cut)));
    EXPECT_STREQ(cut, "There");
    EXPECT_FALSE(error.GetErrorMessage(text, 0));
    EXPECT_FALSE(error.GetErrorMessage(nullptr, 10));
    const CUserException user;
    EXPECT_FALSE(user.GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ(text, "");
}

TEST(Exception, ReportsThroughTheRegisteredFunction)
{
    CException::SetReportFunction(&RecordReport);
    CResourceException resource;
    EXPECT_EQ(resource.ReportError(16, 99), 6);
    EXPECT_EQ(g_reported, "A resource that is needed was not found.|16|0");
    CUserException user;
    EXPECT_EQ(user.ReportError(0, 99), 6);
    EXPECT_EQ(g_reported, "|0|99") << "without a description the given message counts";
    CException::SetReportFunction(nullptr);
}
