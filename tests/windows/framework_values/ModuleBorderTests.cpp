#include "framework/include/afx.h"
#include "framework/include/afxtempl.h"
#include "tests/support/Thrown.h"

#include <gtest/gtest.h>
#include <memory>

// Value types used by a program while their code lives in another module.

namespace
{
class LogFile : public CFile
{
    DECLARE_DYNCREATE(LogFile)
};
IMPLEMENT_DYNCREATE(LogFile, CFile)

class LogException : public CException
{
    DECLARE_DYNAMIC(LogException)
};
IMPLEMENT_DYNAMIC(LogException, CException)
} // namespace

TEST(ModuleBorder, ClassRecordsAreOneInTheProcess)
{
    const CStringArray array;
    EXPECT_EQ(array.GetRuntimeClass(), RUNTIME_CLASS(CStringArray));
    EXPECT_EQ(CRuntimeClass::FromName("CStringArray"), RUNTIME_CLASS(CStringArray));
    const auto* framework = GetModuleHandle("HostFramework.dll");
    ASSERT_NE(framework, nullptr);
    HMODULE owner = nullptr;
    GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                      reinterpret_cast<LPCSTR>(RUNTIME_CLASS(CStringArray)), &owner);
    EXPECT_EQ(owner, framework);
}

TEST(ModuleBorder, TheFrameworkKnowsTheProgramsClasses)
{
    EXPECT_EQ(CRuntimeClass::FromName("LogFile"), RUNTIME_CLASS(LogFile));
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("LogFile"));
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(LogFile)));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CFile)));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(made->IsKindOf(RUNTIME_CLASS(CMemFile)));
    EXPECT_EQ(RUNTIME_CLASS(LogFile)->m_pfnGetBaseClass(), RUNTIME_CLASS(CFile));
}

TEST(ModuleBorder, ExceptionsOfTheFrameworkAreCaughtHere)
{
    CStringArray array;
    EXPECT_THROWN(array.GetAt(0), CInvalidArgException);
    EXPECT_THROWN(CString().SetAt(0, 'x'), COleException);
    EXPECT_THROWN(CFile("C:\\no such folder\\x", CFile::modeRead), CFileException);
    EXPECT_THROWN(CFile::Remove(nullptr), CException);
    EXPECT_THROWN(throw new LogException, CException);
}

TEST(ModuleBorder, TheEmptyTextIsOneInTheProcess)
{
    CFileException error;
    const CString mine;
    EXPECT_EQ(error.m_strFileName.GetString(), mine.GetString());
}

TEST(ModuleBorder, TextsMadeOnOneSideEndOnTheOther)
{
    CString text("made by the program, kept by the framework");
    CFileException error(CFileException::diskFull, 112, text);
    text = error.m_strFileName;
    error.m_strFileName.Empty();
    EXPECT_EQ(text, "made by the program, kept by the framework");
    CStringArray array;
    for (int i = 0; i < 1000; ++i)
    {
        array.Add(CString('x', i % 80));
    }
    array.RemoveAll();
    const CString time = CTime(1709210096).FormatGmt("%Y");
    EXPECT_EQ(time, "2024");
}

TEST(ModuleBorder, AStringPassesAsACharacterPointer)
{
    const CString text("variadic");
    char buffer[20];
    wsprintfA(buffer, "%s", text.GetString());
    EXPECT_STREQ(buffer, "variadic");
    CString formatted;
    formatted.Format("%s/%d", text, 5);
    EXPECT_EQ(formatted, "variadic/5");
}
