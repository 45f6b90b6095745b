#include "toolkit/startup/core/StartupTexts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vorn
{

namespace
{
constexpr const char* kNoName = "Application name goes here";
constexpr const char* kCopyright = "Copyright \xA9 %d-%d Vornwald. All rights reserved.";
constexpr const char* kCannotUpdate = "Check for updates can not be performed properly at this time.  ";

/// Results of the shell that are error codes of the system at the same time; the others share numbers only.
constexpr std::array kSystemResults = {2, 3, 5, 8};
} // namespace

CString ProductName(LPCSTR given)
{
    return given != nullptr ? given : kNoName;
}

CString NamedFor(CString text, const CString& name)
{
    if (name != kDefaultProduct)
    {
        text.Replace(kDefaultProduct, name);
    }
    return text;
}

CString WelcomeText(const CString& name)
{
    return "Welcome to " + name;
}

CString CopyrightText(int firstYear, int lastYear)
{
    CString text;
    text.Format(kCopyright, firstYear, lastYear);
    return text;
}

CString CaptionText(const CString& product, int firstYear, int lastYear)
{
    CString years;
    years.Format(" (%d-%d)", firstYear, lastYear);
    return product + years;
}

bool ShowsDates(float version)
{
    return !std::isnan(version) && version != 0;
}

CString CoverageLine(const CString& coverage)
{
    return "Coverage:      " + coverage;
}

CString EffectiveLine(const CString& date)
{
    return "Effective:       " + date;
}

CString ExpiryLine(const CString& date, bool expired)
{
    return (expired ? "Expired:          " : "Expires:          ") + date;
}

CString NextUpdateLine(const CString& date)
{
    return "Next Update: " + date;
}

CString FolderOfProgram(const CString& program)
{
    return program.Left(program.ReverseFind('\\') + 1);
}

std::uint32_t StartErrorCode(int shellResult, std::uint32_t lastError)
{
    const bool known = std::find(kSystemResults.begin(), kSystemResults.end(), shellResult) != kSystemResults.end();
    return known || lastError == 0 ? static_cast<std::uint32_t>(shellResult) : lastError;
}

CString StartFailureText(CString systemText)
{
    systemText.TrimRight("\r\n");
    return kCannotUpdate + systemText + "\r\n";
}

} // namespace vorn
